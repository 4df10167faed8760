// Data files through the command: a chart's series written by ChartDataWrite
// and read back by ChartDataRead, and the errors a user meets on the way.
#include <gtest/gtest.h>

#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

RunResult run(const std::string& folder, const std::string& script,
              const std::string& flags = "13") {
    return runVelarix("OpenDrawing(400; 300)\n" + script, {"--base", folder, "--flags", flags});
}

TEST(DataFilesRun, WrittenSeriesReadBackTheSame) {
    const std::string folder = makeTempFolder("data-files");
    RunResult first = run(folder,
                          "LineChart2D()\n"
                          "ChartData(1/5/2004&12:30 2/5/2004 null 4/5/2004; 1.5 -2 1e6 null;"
                          " 29/2/2004 1/3/2004 2/3/2004 3/3/2004; 0.125 7 8 9)\n"
                          "ChartDataWrite(\"series.txt\"; replace)\n");
    ASSERT_EQ(first.status, 0) << first.err;
    // The dates of the second chart series show the order, day first, for
    // all; one time makes its whole column show times. Each column of
    // numbers takes the decimals its most exact value needs.
    EXPECT_EQ(readFile(folder + "/series.txt"),
              "1/5/2004&12:30\t2/5/2004&0:00\tNULL\t4/5/2004&0:00\n"
              "1.5\t-2.0\t1000000.0\tNULL\n"
              "29/2/2004\t1/3/2004\t2/3/2004\t3/3/2004\n"
              "0.125\t7.000\t8.000\t9.000\n");

    RunResult second = run(folder,
                           "LineChart2D()\n"
                           "ChartDataRead(\"series.txt\")\n"
                           "ChartDataWrite(\"again.txt\"; replace)\n");
    ASSERT_EQ(second.status, 0) << second.err;
    EXPECT_EQ(readFile(folder + "/again.txt"), readFile(folder + "/series.txt"));
}

TEST(DataFilesRun, TransposedWithSeparatorsAndFormats) {
    const std::string folder = makeTempFolder("data-files-transposed");
    RunResult r =
        run(folder,
            "BarChart()\n"
            "ChartData(1 2 3; 10.5 20)\n"
            "ChartDataWrite(\"t.csv\"; replace; ; on; \"\\n\"; \";\"; \"f1\"; \"[|u|]\")\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(folder + "/t.csv"), "1.0;[10.5]\n2.0;[20]\n3.0;\n");

    RunResult back = run(folder,
                         "BarChart()\n"
                         "ChartDataRead(\"t.csv\"; on; \"\\n\"; \";\")\n"
                         "ChartDataWrite(\"t2.csv\"; replace; ; on; \"\\n\"; \";\")\n");
    EXPECT_EQ(back.status, 1);  // "[10.5]" is no number
    EXPECT_NE(back.err.find("2010"), std::string::npos) << back.err;
}

TEST(DataFilesRun, ExistingFileGetsACounter) {
    const std::string folder = makeTempFolder("data-files-counter");
    const std::string script = "BarChart()\nChartData(1 2)\nChartDataWrite(\"d.txt\")\n";
    ASSERT_EQ(run(folder, script).status, 0);
    ASSERT_EQ(run(folder, script).status, 0);
    EXPECT_EQ(readFile(folder + "/d-1.txt"), "1\t2\n");
    RunResult refused =
        run(folder, "BarChart()\nChartData(1 2)\nChartDataWrite(\"d.txt\"; throwerror)\n", "15");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.err.find("4001: File exist error."), std::string::npos) << refused.err;
}

TEST(DataFilesRun, BadTokenInAFileNamesItsPlace) {
    const std::string folder = makeTempFolder("data-files-bad");
    writeFile(folder + "/bad.txt", "1\t2\t3\n4\tfive\t6\n");
    RunResult r = run(folder, "BarChart()\nChartDataRead(\"bad.txt\")\n", "15");
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err,
              "2010: ChartData(): Invalid value.\n"
              "vxDataRawInput/toValue/1\n"
              "Series 2, Element 2: five\n");
}

TEST(DataFilesRun, BadFormatsAreRefusedWhenRead) {
    const std::string folder = makeTempFolder("data-files-formats");
    RunResult number =
        run(folder, "BarChart()\nChartData(1)\nChartDataWrite(\"x\"; ; ; ; ; ; \"f\")\n", "15");
    EXPECT_EQ(number.status, 1);
    EXPECT_NE(number.err.find("2001: Invalid number format.\nvxDataToFile/assign/1\nf\n"),
              std::string::npos)
        << number.err;
}

// Values of every size: a tiny one puts the column in exponent form, with
// the digits of the longest mantissa; the text written reads back as itself.
TEST(DataFilesRun, ExponentFormReadsBackAsItself) {
    const std::string folder = makeTempFolder("data-files-values");
    RunResult r = run(folder,
                      "LineChart()\nChartData(0.1 123456789 -1e-7 3.25e12 null 42)\n"
                      "ChartDataWrite(\"v.txt\"; replace)\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(readFile(folder + "/v.txt"),
              "1.00000000e-01\t1.23456789e+08\t-1.00000000e-07\t3.25000000e+12\tNULL\t"
              "4.20000000e+01\n");
    RunResult back = run(folder,
                         "LineChart()\nChartDataRead(\"v.txt\")\n"
                         "ChartDataWrite(\"w.txt\"; replace)\n");
    ASSERT_EQ(back.status, 0) << back.err;
    EXPECT_EQ(readFile(folder + "/w.txt"), readFile(folder + "/v.txt"));
}

}  // namespace
}  // namespace Velarix::test
