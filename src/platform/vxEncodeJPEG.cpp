// JPEG through libjpeg-turbo: baseline, RGB, the resolution as JFIF density.
#include <cstdio>  // jpeglib.h needs FILE and size_t declared first

#include <jpeglib.h>

#include <jerror.h>

#include <algorithm>
#include <csetjmp>

#include "platform/vxEncoderSupport.h"

namespace Velarix {

namespace {

// From this quality on, colour is kept at full resolution: thin coloured
// lines of a chart lose their colour with the usual halved chroma.
constexpr int kFullChromaQuality = 90;
constexpr size_t kFirstBlock = 64 * 1024;

// libjpeg reports a failure through error_exit, which must not return:
// it keeps the message and jumps back to the setjmp of compressRows.
struct JpegErrors {
    jpeg_error_mgr pub;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX] = "";
};

void onErrorExit(j_common_ptr cinfo) {
    auto* errors = reinterpret_cast<JpegErrors*>(cinfo->err);
    (*cinfo->err->format_message)(cinfo, errors->message);
    std::longjmp(errors->jump, 1);
}

void onMessage(j_common_ptr) {}

// A destination that writes straight into the output vector: the vector is
// the buffer, grown when libjpeg has filled it and cut to the bytes written
// at the end.
struct JpegDestination {
    jpeg_destination_mgr pub;
    std::vector<unsigned char>* out;
};

bool grow(std::vector<unsigned char>& out) noexcept {
    try {
        out.resize(out.size() + std::max(out.size(), kFirstBlock));
    } catch (...) {
        return false;
    }
    return true;
}

void growOrFail(j_compress_ptr cinfo) {
    auto* dest = reinterpret_cast<JpegDestination*>(cinfo->dest);
    size_t used = dest->out->size();
    if (!grow(*dest->out)) {
        cinfo->err->msg_code = JERR_OUT_OF_MEMORY;
        cinfo->err->msg_parm.i[0] = 0;
        (*cinfo->err->error_exit)(reinterpret_cast<j_common_ptr>(cinfo));
    }
    dest->pub.next_output_byte = dest->out->data() + used;
    dest->pub.free_in_buffer = dest->out->size() - used;
}

void onInitDestination(j_compress_ptr cinfo) {
    growOrFail(cinfo);
}

boolean onEmptyBuffer(j_compress_ptr cinfo) {
    growOrFail(cinfo);
    return TRUE;
}

void onTermDestination(j_compress_ptr cinfo) {
    auto* dest = reinterpret_cast<JpegDestination*>(cinfo->dest);
    dest->out->resize(dest->out->size() - dest->pub.free_in_buffer);
}

void setUpCompression(jpeg_compress_struct& cinfo, const vxEncoderOptions& options) {
    cinfo.in_color_space = JCS_RGB;
    cinfo.input_components = 3;
    jpeg_set_defaults(&cinfo);
    int quality = std::clamp<int>(options.quality, 0, 100);
    jpeg_set_quality(&cinfo, quality, TRUE);
    if (quality >= kFullChromaQuality) {
        for (int i = 0; i < cinfo.num_components; ++i) {
            cinfo.comp_info[i].h_samp_factor = 1;
            cinfo.comp_info[i].v_samp_factor = 1;
        }
    }
    cinfo.density_unit = 1;  // dots per inch
    cinfo.X_density = cinfo.Y_density = static_cast<UINT16>(vxResolutionPerInch(options));
    // Huffman tables fitted to the picture would need all of its
    // coefficients in memory at once, so the standard tables stay.
    cinfo.optimize_coding = FALSE;
}

// The whole libjpeg session; a failure leaves by longjmp, so nothing here
// has a destructor. `row` holds width * 3 bytes.
bool compressRows(jpeg_compress_struct& cinfo, JpegErrors& errors, JpegDestination& dest,
                  const vxRasterPixels& pixels, const vxEncoderOptions& options,
                  unsigned char* row) {
    if (setjmp(errors.jump)) return false;
    jpeg_create_compress(&cinfo);
    cinfo.dest = &dest.pub;
    cinfo.image_width = static_cast<JDIMENSION>(pixels.width);
    cinfo.image_height = static_cast<JDIMENSION>(pixels.height);
    setUpCompression(cinfo, options);
    jpeg_start_compress(&cinfo, TRUE);
    JSAMPROW rows[1] = {row};
    for (int y = 0; y < pixels.height; ++y) {
        vxRowToRGB(pixels, y, row);
        jpeg_write_scanlines(&cinfo, rows, 1);
    }
    jpeg_finish_compress(&cinfo);
    return true;
}

}  // namespace

bool vxEncodeJPEG(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                  std::vector<unsigned char>& out, std::string& status) {
    std::vector<unsigned char> row(size_t(pixels.width) * 3);
    JpegErrors errors;
    jpeg_compress_struct cinfo{};
    cinfo.err = jpeg_std_error(&errors.pub);
    errors.pub.error_exit = onErrorExit;
    errors.pub.output_message = onMessage;
    JpegDestination dest{};
    dest.pub.init_destination = onInitDestination;
    dest.pub.empty_output_buffer = onEmptyBuffer;
    dest.pub.term_destination = onTermDestination;
    dest.out = &out;
    bool done = compressRows(cinfo, errors, dest, pixels, options, row.data());
    jpeg_destroy_compress(&cinfo);
    if (!done) status = errors.message;
    return done;
}

}  // namespace Velarix
