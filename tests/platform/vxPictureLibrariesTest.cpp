// The picture libraries opened at run time: their tables, a library that is
// missing or lacks calls, and the command's start without them.
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/vxPictureLibraries.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix {
namespace {

using test::RunResult;

TEST(vxPictureLibraries, SharedSetHasEveryTable) {
    vxPictureLibraries& libraries = vxPictureLibraries::shared();
    ASSERT_NE(libraries.tiff(), nullptr);
    ASSERT_NE(libraries.gif(), nullptr);
    ASSERT_NE(libraries.imageQuant(), nullptr);
    EXPECT_NE(libraries.tiff()->TIFFReadRGBAImageOriented, nullptr);
    EXPECT_NE(libraries.find(vxPictureLibrary::kGIF, "DGifSlurp"), nullptr);
    EXPECT_EQ(libraries.find(vxPictureLibrary::kGIF, "NoSuchCall"), nullptr);
    EXPECT_EQ(libraries.missingText(vxPictureLibrary::kImageQuant),
              "libimagequant.so.0 is missing");
}

// A library that isn't there and one that lacks the calls (zlib under the
// names of the others) both give no table, as often as they are asked.
TEST(vxPictureLibraries, MissingLibraryOrCallsGiveNoTable) {
    vxPictureLibraries libraries({"libvelarix-none.so.9", "libz.so.1", "libz.so.1"});
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(libraries.tiff(), nullptr);
        EXPECT_EQ(libraries.gif(), nullptr);
        EXPECT_EQ(libraries.imageQuant(), nullptr);
    }
    EXPECT_EQ(libraries.find(vxPictureLibrary::kTIFF, "TIFFOpen"), nullptr);
    EXPECT_NE(libraries.find(vxPictureLibrary::kGIF, "zlibVersion"), nullptr);
}

// The path zlib was loaded from, to stand in for the other libraries.
std::string zlibPath() {
    vxPictureLibraries libraries({"libz.so.1", "libz.so.1", "libz.so.1"});
    Dl_info info{};
    void* version = libraries.find(vxPictureLibrary::kTIFF, "zlibVersion");
    return version && dladdr(version, &info) && info.dli_fname ? info.dli_fname : "";
}

// Runs the built command with an extra environment variable.
RunResult runWith(const char* name, const std::string& value, const std::string& folder,
                  const std::string& script) {
    setenv(name, value.c_str(), 1);
    RunResult r = test::runVelarixBinary("--base " + folder, script);
    unsetenv(name);
    return r;
}

bool mentions(const std::string& log, const char* library) {
    return log.find(library) != std::string::npos;
}

// The libraries the run loaded, as the dynamic loader logs them into files
// of its own (the shell's log among them).
std::string loaderLog(const std::string& folder, const std::string& script) {
    const std::string logs = folder + "/loader";
    std::filesystem::remove_all(logs);
    std::filesystem::create_directories(logs);
    setenv("LD_DEBUG_OUTPUT", (logs + "/log").c_str(), 1);
    const RunResult r = runWith("LD_DEBUG", "libs", folder, script);
    unsetenv("LD_DEBUG_OUTPUT");
    EXPECT_EQ(r.status, 0) << r.err;
    std::string log;
    for (const auto& file : std::filesystem::directory_iterator(logs))
        log += test::readFile(file.path().string());
    return log;
}

TEST(vxPictureLibraries, CommandStartsWithoutThemAndOpensThemForTheirFormats) {
    const std::string folder = test::makeTempFolder("late-libraries");
    const std::string draw = "OpenDrawing(40; 30)\nAddRect(4; 4; 20; 20; 255 0 0)\n";
    std::string log =
        loaderLog(folder, draw + "SaveAsPNGFile(\"a.png\")\nSaveAsSVGFile(\"a.svg\")\n");
    ASSERT_TRUE(mentions(log, "libcairo.so.2"));
    for (const char* library : {"libtiff", "libgif", "libimagequant", "libgomp", "libwebp"})
        EXPECT_FALSE(mentions(log, library)) << library;
    log = loaderLog(folder, draw + "SaveAsTIFFile(\"a.tif\")\nSaveAsGIFFile(\"a.gif\")\n");
    for (const char* library : {"libtiff.so.6", "libgif.so.7", "libimagequant.so.0"})
        EXPECT_TRUE(mentions(log, library)) << library;
}

// zlib under the sonames of libtiff and giflib is found first and lacks
// their calls: writing fails with the file error of a failed encoder,
// reading with 4013, and the other formats go on working.
TEST(vxPictureLibraries, CommandWithoutUsableLibrariesReportsErrors) {
    const std::string zlib = zlibPath();
    ASSERT_FALSE(zlib.empty());
    const std::string folder = test::makeTempFolder("late-libraries-missing");
    const std::string fakes = folder + "/lib";
    std::filesystem::create_directories(fakes);
    for (const char* name : {"/libtiff.so.6", "/libgif.so.7"})
        std::filesystem::copy_file(zlib, fakes + name);
    test::writeFile(folder + "/p.gif", test::encodeGIF(test::makePicture(4, 4)));
    const std::string draw = "OpenDrawing(40; 30)\nAddRect(4; 4; 20; 20; 255 0 0)\n";
    RunResult r = runWith("LD_LIBRARY_PATH", fakes, folder, draw + "SaveAsTIFFile(\"a.tif\")\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(mentions(r.err, "4005")) << r.err;
    r = runWith("LD_LIBRARY_PATH", fakes, folder, draw + "SaveAsGIFFile(\"a.gif\")\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(mentions(r.err, "4005")) << r.err;
    r = runWith("LD_LIBRARY_PATH", fakes, folder,
                draw + "AddPicture(0; 0; 10; 10; file; \"p.gif\")\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(mentions(r.err, "4013")) << r.err;
    r = runWith("LD_LIBRARY_PATH", fakes, folder, draw + "SaveAsPNGFile(\"a.png\")\n");
    EXPECT_EQ(r.status, 0) << r.err;
}

}  // namespace
}  // namespace Velarix
