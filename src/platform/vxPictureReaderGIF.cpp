// GIF pictures through giflib: the first frame on the logical screen, with
// its transparent colour; the screen outside the frame stays transparent.
// Later frames are never read.
#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "output/vxBitmap.h"
#include "platform/vxPictureLibraries.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

namespace {

struct MemoryInput {
    const uint8_t* data;
    size_t size;
    size_t position;
};

int readFromMemory(GifFileType* gif, GifByteType* out, int count) {
    auto* input = static_cast<MemoryInput*>(gif->UserData);
    const size_t left = input->size - input->position;
    const size_t n = std::min(left, static_cast<size_t>(std::max(count, 0)));
    std::memcpy(out, input->data + input->position, n);
    input->position += n;
    return static_cast<int>(n);
}

struct GifCloser {
    decltype(&::DGifCloseFile) close;
    void operator()(GifFileType* gif) const {
        int error = 0;
        close(gif, &error);
    }
};

using GifHandle = std::unique_ptr<GifFileType, GifCloser>;

// Walks the records up to the first image descriptor, taking the
// transparent colour of a graphic control block on the way. False when the
// file ends or fails first.
bool findFirstFrame(const vxGIFCalls& g, GifFileType* gif, int& transparent) {
    transparent = NO_TRANSPARENT_COLOR;
    for (;;) {
        GifRecordType type = UNDEFINED_RECORD_TYPE;
        if (g.DGifGetRecordType(gif, &type) == GIF_ERROR) return false;
        if (type == IMAGE_DESC_RECORD_TYPE) return g.DGifGetImageDesc(gif) != GIF_ERROR;
        if (type != EXTENSION_RECORD_TYPE) return false;
        int code = 0;
        GifByteType* block = nullptr;
        if (g.DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
        if (code == GRAPHICS_EXT_FUNC_CODE && block && block[0] >= 4) {
            GraphicsControlBlock control;
            if (g.DGifExtensionToGCB(block[0], block + 1, &control) != GIF_ERROR) {
                transparent = control.TransparentColor;
            }
        }
        while (block) {
            if (g.DGifGetExtensionNext(gif, &block) == GIF_ERROR) return false;
        }
    }
}

// The rows of an interlaced frame come in four passes.
std::vector<long> rowOrder(long height, bool isInterlaced) {
    std::vector<long> order;
    order.reserve(static_cast<size_t>(height));
    if (!isInterlaced) {
        for (long y = 0; y < height; ++y) order.push_back(y);
        return order;
    }
    const long start[] = {0, 4, 2, 1};
    const long step[] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass) {
        for (long y = start[pass]; y < height; y += step[pass]) order.push_back(y);
    }
    return order;
}

bool readFrame(const vxGIFCalls& g, GifFileType* gif, int transparent, vxBitmap& bitmap) {
    const GifImageDesc& frame = gif->Image;
    const ColorMapObject* colors = frame.ColorMap ? frame.ColorMap : gif->SColorMap;
    std::vector<GifPixelType> line(static_cast<size_t>(std::max(frame.Width, 1)));
    for (long y : rowOrder(frame.Height, frame.Interlace)) {
        if (g.DGifGetLine(gif, line.data(), frame.Width) == GIF_ERROR) return false;
        for (long x = 0; x < frame.Width; ++x) {
            const int index = line[static_cast<size_t>(x)];
            if (index == transparent || !colors || index >= colors->ColorCount) continue;
            const GifColorType& c = colors->Colors[index];
            bitmap.setPixel(frame.Left + x, frame.Top + y, c.Red, c.Green, c.Blue);
        }
    }
    return true;
}

}  // namespace

bool vxPictureReader::readGIF(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    if (bytes.size() < 6 || std::memcmp(bytes.data(), "GIF", 3) != 0) {
        setError(vxErrFile::kUnknownFormat, where(L"readGIF", 1));
        return false;
    }
    const vxGIFCalls* g = vxPictureLibraries::shared().gif();
    if (g == nullptr) {
        setError(vxErrFile::kUnknownFormat, where(L"readGIF", 6));
        return false;
    }
    MemoryInput input{bytes.data(), bytes.size(), 0};
    int openError = 0;
    GifHandle gif(g->DGifOpen(&input, readFromMemory, &openError), {g->DGifCloseFile});
    int transparent = NO_TRANSPARENT_COLOR;
    if (!gif || !findFirstFrame(*g, gif.get(), transparent)) {
        setError(vxErrFile::kRead, where(L"readGIF", 2));
        return false;
    }
    // A screen of no size is taken from the first frame.
    const GifImageDesc& frame = gif->Image;
    info.width = gif->SWidth > 0 ? gif->SWidth : frame.Left + frame.Width;
    info.height = gif->SHeight > 0 ? gif->SHeight : frame.Top + frame.Height;
    if (!checkSize(info, L"readGIF", 3)) return false;
    if (!bitmap) return true;
    // A frame far beyond the screen would only cost time to decode.
    if (!checkSize({frame.Width, frame.Height}, L"readGIF", 5)) return false;
    if (!allocate(*bitmap, info)) return false;
    if (!readFrame(*g, gif.get(), transparent, *bitmap)) {
        setError(vxErrFile::kRead, where(L"readGIF", 4));
        return false;
    }
    return true;
}

}  // namespace Velarix
