#include "script/vxAssign.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "Utilities/Sources/vxFloatArray.h"
#include "Utilities/Sources/vxStringArray.h"
#include "script/vxFunctionIds.h"
#include "script/vxFunctionTable.h"

namespace Velarix {
namespace {

// Arguments: 0 void, 1 short 3, 2 double 2.75, 3 string, 4 float array.
class vxAssignTest : public ::testing::Test {
protected:
    void SetUp() override {
        assign.setFunction(7);
        ASSERT_TRUE(assign.addVoid());
        ASSERT_TRUE(assign.addShort(3));
        ASSERT_TRUE(assign.addDouble(2.75));
        ASSERT_TRUE(assign.addString(L"red"));
        ASSERT_TRUE(assign.addFloatArray(vxFloatArray({0.5f, 1.5f})));
    }

    vxAssign assign;
};

TEST_F(vxAssignTest, GettersGiveTheDefaultForVoidAndMissingArguments) {
    for (long index : {0L, -1L, 5L}) {
        EXPECT_TRUE(assign.isVoid(index)) << index;
        EXPECT_EQ(assign.getShort(index, 9), 9);
        EXPECT_EQ(assign.getDouble(index, -1.5), -1.5);
        EXPECT_TRUE(assign.getBool(index, true));
        EXPECT_EQ(assign.getString(index, L"none"), L"none");
        EXPECT_TRUE(assign.getFloatArray(index).empty());
        EXPECT_EQ(assign.getArraySize(index), 0);
    }
    EXPECT_FALSE(assign.isArgumentOutOfRange(0));
    EXPECT_TRUE(assign.isArgumentOutOfRange(-1));
    EXPECT_TRUE(assign.isArgumentOutOfRange(5));
    EXPECT_EQ(assign.getNumOfArguments(), 5);
}

TEST_F(vxAssignTest, NumericGettersConvertBetweenKinds) {
    EXPECT_TRUE(assign.isShort(1));
    EXPECT_EQ(assign.getLong(1), 3);
    EXPECT_EQ(assign.getDouble(1), 3.0);
    EXPECT_EQ(assign.getShort(2), 2);
    EXPECT_EQ(assign.getFloat(2), 2.75f);
    EXPECT_TRUE(assign.getBool(2));
    // A string is no number and a number no string.
    EXPECT_EQ(assign.getDouble(3, 8.0), 8.0);
    EXPECT_EQ(assign.getString(1, L"x"), L"x");
    EXPECT_EQ(assign.getString(3), L"red");
}

TEST_F(vxAssignTest, ConversionsStopAtTheTargetRange) {
    assign.addDouble(1e300);
    assign.addLong(-100000);
    assign.addDouble(0.0);
    EXPECT_EQ(assign.getShort(5), std::numeric_limits<short>::max());
    EXPECT_EQ(assign.getLong(5), std::numeric_limits<long>::max());
    EXPECT_EQ(assign.getFloat(5), std::numeric_limits<float>::max());
    EXPECT_EQ(assign.getShort(6), std::numeric_limits<short>::min());
    EXPECT_FALSE(assign.getBool(7, true));
}

TEST_F(vxAssignTest, ArrayGettersConvertElementWise) {
    EXPECT_TRUE(assign.isFloatArray(4));
    EXPECT_EQ(assign.getArraySize(4), 2);
    EXPECT_EQ(assign.getDoubleArray(4), (std::vector<double>{0.5, 1.5}));
    EXPECT_EQ(assign.getShortArray(4), (std::vector<short>{0, 1}));
    EXPECT_TRUE(assign.getStringArray(4).empty());
    EXPECT_TRUE(assign.getDoubleArray(2).empty());  // a single value is no array

    assign.addStringArray(std::vector<std::wstring>{L"a", L"b"});
    assign.addLongArray(std::vector<long>{4, 5, 6});
    EXPECT_EQ(assign.getStringArray(5), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(assign.getFloatArray(6), (std::vector<float>{4, 5, 6}));
    EXPECT_EQ(assign.getArraySize(6), 3);
}

TEST_F(vxAssignTest, OffsetShiftsEveryIndexIncludingNotes) {
    assign.setNote(2, L"12/5/2004");
    assign.addToArgumentOffset(2);
    EXPECT_EQ(assign.getArgumentOffset(), 2);
    EXPECT_EQ(assign.getDouble(0), 2.75);
    EXPECT_EQ(assign.getNote(0), L"12/5/2004");
    EXPECT_EQ(assign.getNote(1), L"");
    EXPECT_EQ(assign.getShort(-1), 3);
    EXPECT_TRUE(assign.isVoid(-2));
    EXPECT_TRUE(assign.isArgumentOutOfRange(-3));
    EXPECT_TRUE(assign.isArgumentOutOfRange(3));
    EXPECT_EQ(assign.at(1)->getKind(), vxPrimitive::Kind::String);
}

TEST_F(vxAssignTest, SetFunctionClearsValuesNotesAndOffset) {
    assign.setNote(2, L"note");
    assign.addToArgumentOffset(1);
    assign.setFunction(kOpenDrawing);
    EXPECT_EQ(assign.getFunction(), kOpenDrawing);
    EXPECT_TRUE(assign.isEmpty());
    EXPECT_EQ(assign.getArgumentOffset(), 0);
    EXPECT_EQ(assign.getNote(2), L"");
    EXPECT_EQ(assign.getFunctionGroup(), getFunctionGroup(kOpenDrawing));

    assign.addLong(1);
    assign.clear();
    EXPECT_TRUE(assign.isEmpty());
    EXPECT_EQ(assign.getFunction(), kOpenDrawing);
}

TEST_F(vxAssignTest, DumpShowsFieldsAndVoidArguments) {
    std::ostringstream out;
    assign.dump(2, out);
    const std::string text = out.str();
    EXPECT_NE(text.find("long fnIndex:        7"), std::string::npos) << text;
    EXPECT_NE(text.find("/NULL"), std::string::npos);
    EXPECT_NE(text.find("short value: 3"), std::string::npos);
    EXPECT_NE(text.find("vector<float> values 0.5 1.5"), std::string::npos);
}

}  // namespace
}  // namespace Velarix
