// Pictures of one drawing, as written by us and as shown by other readers,
// compared block by block so that a different font face does not count but a
// missing or misplaced shape does.
#pragma once

#include <string>
#include <vector>

#include "platform/vxPictureTestSupport.h"

namespace Velarix::test {

// Which of the two readers' pictures to hold against our PNG.
enum class CompareWith { kBoth, kOnlyPDF, kOnlySVG, kNeither };

// A picture shown over white, cut into square blocks, each the mean of its
// pixels per colour channel.
struct BlockPicture {
    int block = 0;
    int columns = 0;
    int rows = 0;
    std::vector<vxRGBA> means;  // rows top to bottom

    const vxRGBA& at(int column, int row) const { return means[size_t(row * columns + column)]; }
};

BlockPicture blocksOf(const vxDecodedPicture& picture, int block);

// One block that differs, at its pixel position, with both means.
struct BlockDifference {
    int x = 0;
    int y = 0;
    int difference = 0;
    vxRGBA ours{};
    vxRGBA theirs{};
};

// The blocks whose largest channel difference exceeds `tolerance`, the worst
// first. Pictures of different sizes yield one difference of 255 at 0, 0.
std::vector<BlockDifference> differingBlocks(const BlockPicture& ours, const BlockPicture& theirs,
                                             int tolerance);

// The worst `count` differences as lines for a failure message.
std::string describeBlocks(const std::vector<BlockDifference>& differences, size_t count);

// Runs a shell command in `folder`; true when it exits with 0. Its output goes
// to `output` when given.
bool runIn(const std::string& folder, const std::string& command, std::string* output = nullptr);

}  // namespace Velarix::test

namespace Velarix::test {

// The words of the text elements of an SVG file: runs of two or more ASCII
// letters or digits, with character references resolved.
std::vector<std::string> wordsOfSVG(const std::string& svg);

}  // namespace Velarix::test
