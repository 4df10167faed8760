#include "output/vxReaderComparison.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>

#include "support/vxTestRun.h"

namespace Velarix::test {

namespace {

vxRGBA blockMean(const vxDecodedPicture& picture, int x0, int y0, int block) {
    const int x1 = std::min(x0 + block, picture.width);
    const int y1 = std::min(y0 + block, picture.height);
    long sums[3] = {0, 0, 0};
    for (int y = y0; y < y1; ++y) {
        for (int x = x0; x < x1; ++x) {
            const vxRGBA white = vxOverWhite(picture.at(x, y));
            for (int i = 0; i < 3; ++i) sums[i] += white[i];
        }
    }
    const long count = long(x1 - x0) * long(y1 - y0);
    return {int(sums[0] / count), int(sums[1] / count), int(sums[2] / count), 255};
}

// The text between `<text ...>` and `</text>`, references resolved to their
// code; anything outside ASCII becomes a space.
std::string textContent(const std::string& svg, size_t from, size_t to) {
    std::string text;
    for (size_t i = from; i < to; ++i) {
        if (svg.compare(i, 3, "&#x") == 0) {
            const size_t end = svg.find(';', i);
            const long code = std::strtol(svg.substr(i + 3, end - i - 3).c_str(), nullptr, 16);
            text += code > 0 && code < 128 ? char(code) : ' ';
            i = end;
        } else {
            text += svg[i];
        }
    }
    return text;
}

void addWords(const std::string& text, std::vector<std::string>& words) {
    std::string word;
    for (char c : text + " ") {
        if (std::isalnum(static_cast<unsigned char>(c))) {
            word += c;
            continue;
        }
        if (word.size() >= 2) words.push_back(word);
        word.clear();
    }
}

}  // namespace

std::vector<std::string> wordsOfSVG(const std::string& svg) {
    std::vector<std::string> words;
    for (size_t at = svg.find("<text"); at != std::string::npos; at = svg.find("<text", at)) {
        const size_t start = svg.find('>', at);
        const size_t end = svg.find("</text>", start);
        if (start == std::string::npos || end == std::string::npos) break;
        addWords(textContent(svg, start + 1, end), words);
        at = end;
    }
    return words;
}

BlockPicture blocksOf(const vxDecodedPicture& picture, int block) {
    BlockPicture blocks;
    blocks.block = block;
    blocks.columns = (picture.width + block - 1) / block;
    blocks.rows = (picture.height + block - 1) / block;
    for (int row = 0; row < blocks.rows; ++row) {
        for (int column = 0; column < blocks.columns; ++column) {
            blocks.means.push_back(blockMean(picture, column * block, row * block, block));
        }
    }
    return blocks;
}

std::vector<BlockDifference> differingBlocks(const BlockPicture& ours, const BlockPicture& theirs,
                                             int tolerance) {
    if (ours.columns != theirs.columns || ours.rows != theirs.rows || ours.block != theirs.block) {
        return {BlockDifference{0, 0, 255, {}, {}}};
    }
    std::vector<BlockDifference> found;
    for (int row = 0; row < ours.rows; ++row) {
        for (int column = 0; column < ours.columns; ++column) {
            const vxRGBA& a = ours.at(column, row);
            const vxRGBA& b = theirs.at(column, row);
            const int difference = vxChannelDifference(a, b, false);
            if (difference <= tolerance) continue;
            found.push_back({column * ours.block, row * ours.block, difference, a, b});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& l, const auto& r) { return l.difference > r.difference; });
    return found;
}

std::string describeBlocks(const std::vector<BlockDifference>& differences, size_t count) {
    std::ostringstream text;
    auto colour = [](const vxRGBA& c) {
        return std::to_string(c[0]) + " " + std::to_string(c[1]) + " " + std::to_string(c[2]);
    };
    for (size_t i = 0; i < std::min(count, differences.size()); ++i) {
        const BlockDifference& d = differences[i];
        text << "  block at " << d.x << "," << d.y << ": ours " << colour(d.ours) << ", theirs "
             << colour(d.theirs) << " (by " << d.difference << ")\n";
    }
    return text.str();
}

bool runIn(const std::string& folder, const std::string& command, std::string* output) {
    const std::string line = "cd '" + folder + "' && " + command + " > reader-out.txt 2>&1";
    const bool ok = std::system(line.c_str()) == 0;
    if (output) *output = readFile(folder + "/reader-out.txt");
    return ok;
}

}  // namespace Velarix::test
