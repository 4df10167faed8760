// Setup and close of the raster device: the canvas of each route, the
// finished picture, the targets and the streams.
#include "output/vxDeviceGDIPlus.h"

#include <cmath>

#include "host/vxLog.h"
#include "output/vxWriteExternal.h"
#include "output/vxWriteStream.h"
#include "platform/vxImageEncoder.h"
#include "settings/vxRenderingSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

namespace {

// The formats that the device writes, in the order of their streams.
constexpr short kPictureFormats[] = {kFormatGIF, kFormatJPEG, kFormatTIFF, kFormatPNG, kFormatBMP};

bool isPictureFormat(short format) {
    for (short f : kPictureFormats) {
        if (f == format) return true;
    }
    return false;
}

// A size in whole pixels; the largest picture that cairo makes is 32767
// pixels wide and high, beyond which the canvas reports a fault.
int pixelsOf(float length) {
    if (!(length > 0.0f)) return 0;
    return static_cast<int>(std::lround(std::fmin(length, 1e6f)));
}

}  // namespace

vxDeviceGDIPlus::vxDeviceGDIPlus(const vxUserSettings* settings)
    : vxShapeDevice(L"vxDeviceGDIPlus"), userSettings(settings) {}

vxDeviceGDIPlus::~vxDeviceGDIPlus() = default;

void vxDeviceGDIPlus::setUp(const vxDrawingSpecs& specs) {
    vxDevice::setUp(specs);
    textAntialiasing = -1;
    const vxRenderingSettings* rendering =
        userSettings ? userSettings->getRenderingSettings() : nullptr;
    if (!rendering) return;
    setAntialiasing(rendering->getShapeAntialiasing() != 0 ? 1 : 0);
    textAntialiasing = rendering->getTextAntialiasing() != 0 ? 1 : 0;
    setUseFractionalMetrics(rendering->getFractionalMetrics() != 0);
}

bool vxDeviceGDIPlus::isTextAntialiased() const {
    return textAntialiasing < 0 ? getAntialiasing() != 0 : textAntialiasing != 0;
}

void vxDeviceGDIPlus::open() {
    discard();
    isBitmapRoute = isBitmap();
    pixelWidth = pixelsOf(getWidth());
    pixelHeight = pixelsOf(getHeight());
    if (!createCanvas()) return;
    setUpContext();
}

void vxDeviceGDIPlus::discard() {
    cr.reset();
    canvas.reset();
    picture.reset();
    clipMask.reset();
    clipPaths.clear();
    isClosed = false;
    pictures.clear();
    texture.reset();
    forgetContextState();
}

// A new image surface is cleared to zero, which is transparent white as
// well as any other transparent colour: premultiplied alpha keeps no
// colour where there is no alpha.
bool vxDeviceGDIPlus::createCanvas() {
    if (isBitmapRoute) {
        canvas.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelWidth, pixelHeight));
    } else {
        const cairo_rectangle_t frame = {0.0, 0.0, std::fmax(0.0f, getWidth()),
                                         std::fmax(0.0f, getHeight())};
        canvas.reset(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &frame));
    }
    if (reportCairoStatus(cairo_surface_status(canvas.get()), L"createCanvas", 1)) return true;
    canvas.reset();
    return false;
}

void vxDeviceGDIPlus::useAliasedShapes(bool value) {
    if (!isDrawing()) return;
    const bool smooth = getAntialiasing() != 0 && !value;
    cairo_set_antialias(cr.get(), smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
}

// Antialiasing, then the default pen (width 1, square caps, miter joins
// with limit 10) and brush (opaque black).
void vxDeviceGDIPlus::setUpContext() {
    cr.reset(cairo_create(canvas.get()));
    if (!checkStatus(L"createContext")) {
        cr.reset();
        return;
    }
    cairo_set_antialias(cr.get(),
                        getAntialiasing() != 0 ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_antialias(
        options, isTextAntialiased() ? CAIRO_ANTIALIAS_GRAY : CAIRO_ANTIALIAS_NONE);
    cairo_set_font_options(cr.get(), options);
    cairo_font_options_destroy(options);
    setUpFontMetrics();
    forgetContextState();
    cairo_set_line_width(cr.get(), 1.0);
    cairo_set_line_cap(cr.get(), CAIRO_LINE_CAP_SQUARE);
    cairo_set_line_join(cr.get(), CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(cr.get(), 10.0);
    pen.isKnown = true;
    pen.width = 1.0;
    pen.cap = CAIRO_LINE_CAP_SQUARE;
    pen.join = CAIRO_LINE_JOIN_MITER;
    pen.miterLimit = 10.0;
    cairo_set_source_rgba(cr.get(), 0.0, 0.0, 0.0, 1.0);
    hasSolidSource = true;
    sourceRGBA[0] = sourceRGBA[1] = sourceRGBA[2] = 0.0;
    sourceRGBA[3] = 1.0;
    checkStatus(L"open");
}

double vxDeviceGDIPlus::at(float value) const {
    return isBitmapRoute ? std::round(value) : static_cast<double>(value);
}

void vxDeviceGDIPlus::close() {
    if (!cr) return;
    const bool drawn = checkStatus(L"close");
    cr.reset();
    clipMask.reset();
    clipPaths.clear();
    if (!drawn) return;
    // A record is played into its picture when the first target asks.
    isClosed = true;
    writeTargets();
}

cairo_surface_t* vxDeviceGDIPlus::getPicture() {
    if (!isClosed) return nullptr;
    makePicture();
    return picture.get();
}

// The bitmap is its own picture; a record is played into a new one.
void vxDeviceGDIPlus::makePicture() {
    if (picture || !canvas) return;
    if (isBitmapRoute) {
        picture.reset(cairo_surface_reference(canvas.get()));
        return;
    }
    vxCairoSurface image(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelWidth, pixelHeight));
    if (!reportCairoStatus(cairo_surface_status(image.get()), L"makePicture", 1)) return;
    vxCairoContext painter(cairo_create(image.get()));
    cairo_set_source_surface(painter.get(), canvas.get(), 0.0, 0.0);
    cairo_paint(painter.get());
    if (!reportCairoStatus(cairo_status(painter.get()), L"makePicture", 2)) return;
    painter.reset();
    cairo_surface_flush(image.get());
    picture = std::move(image);
}

// Clipboard targets have nothing to take on this platform; file and
// stream targets get the picture in their format. A target of another
// format (none set, or EMF, which needs a recorder of vector commands) is
// passed over.
void vxDeviceGDIPlus::writeTargets() {
    auto isWritten = [](const vxWriteExternal& target) {
        return target.getType() != kTargetClipboard && isPictureFormat(target.getFormat());
    };
    for (const auto& target : targets) {
        if (isWritten(*target) && !writeTarget(*target)) return;
    }
}

// A stream target gets the bytes of the picture at once; a file is opened
// at the first byte and written piece by piece as the encoder makes them.
bool vxDeviceGDIPlus::writeTarget(vxWriteExternal& target) {
    auto failed = [&] { return vxDeviceTargets::takeFault(target, *this); };
    if (target.getType() == kTargetStream) {
        std::vector<unsigned char> bytes;
        if (!encode(target, [&](const unsigned char* data, size_t length) {
                bytes.insert(bytes.end(), data, data + length);
                return true;
            }))
            return false;
        if (auto* stream = dynamic_cast<vxWriteStream*>(&target)) {
            stream->setSize(getWidth(), getHeight());
        }
        target.storeData(bytes);
        return !failed();
    }
    bool isOpen = false;
    const bool written = encode(target, [&](const unsigned char* data, size_t length) {
        if (!isOpen) {
            target.open();
            isOpen = true;
        }
        if (!target.isError()) target.writeBytes(data, length);
        return !target.isError();
    });
    if (isOpen && !target.isError()) target.close();
    return !failed() && written;
}

// The target's resolution and, for JPEG, its quality go to the encoder
// where they are set; else the encoder's defaults hold. Every format is
// encoded from the one picture with alpha: the encoders of the formats
// without alpha lay it on white row by row, so that a large drawing is
// held in memory once. A fault of the target is the target's to report.
bool vxDeviceGDIPlus::encode(const vxWriteExternal& target, const vxByteSink& write) {
    const short format = target.getFormat();
    cairo_surface_t* image = getPicture();
    if (!image) return false;
    if (pixelWidth == 0 || pixelHeight == 0) {
        fail(vxErrChart::kImageDimension, L"encode", 1);
        return false;
    }
    cairo_surface_flush(image);
    vxRasterPixels pixels;
    pixels.data = cairo_image_surface_get_data(image);
    pixels.width = cairo_image_surface_get_width(image);
    pixels.height = cairo_image_surface_get_height(image);
    pixels.stride = cairo_image_surface_get_stride(image);
    vxEncoderOptions options;
    if (target.getResolution() > 0) options.resolution = target.getResolution();
    if (format == kFormatJPEG && target.getCompressionQuality() > 0) {
        options.quality = target.getCompressionQuality();
    }
    std::string status;
    if (vxEncodeImageTo(static_cast<vxImageFormat>(format), pixels, options, write, status)) {
        return true;
    }
    if (!target.isError())
        fail(vxErrFile::kWrite, L"encode", 2, std::wstring(status.begin(), status.end()));
    return false;
}

long vxDeviceGDIPlus::getNumOfStreams() const {
    long count = 0;
    for (short format : kPictureFormats) {
        for (const auto& target : targets) {
            if (target->getType() == kTargetStream && target->getFormat() == format) {
                ++count;
                break;
            }
        }
    }
    return count;
}

const vxStreamRecord* vxDeviceGDIPlus::getStream(long index) const {
    for (short format : kPictureFormats) {
        for (const auto& target : targets) {
            if (target->getType() != kTargetStream || target->getFormat() != format) continue;
            if (index == 0) return target->getStreamRecord();
            --index;
            break;
        }
    }
    return nullptr;
}

void vxDeviceGDIPlus::fail(short code, const wchar_t* method, int number,
                           const std::wstring& info) {
    if (isError()) return;
    setError(code, where(method, number), info);
}

bool vxDeviceGDIPlus::checkStatus(const wchar_t* method, int number) {
    if (!cr) return false;
    return reportCairoStatus(cairo_status(cr.get()), method, number);
}

// cairo's status goes along as the system code, and its text as the
// additional information.
bool vxDeviceGDIPlus::reportCairoStatus(cairo_status_t status, const wchar_t* method, int number) {
    if (status == CAIRO_STATUS_SUCCESS) return true;
    if (isError()) return false;
    const short code = status == CAIRO_STATUS_INVALID_SIZE ? vxErrChart::kImageDimension
                                                           : vxErrRuntime::kOutOfMemory;
    const char* text = cairo_status_to_string(status);
    setRuntimeError(code, static_cast<short>(status), where(method, number),
                    std::wstring(text, text + std::char_traits<char>::length(text)));
    return false;
}

void vxDeviceGDIPlus::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDevice::dump(depth, out);
    vxDumpLine(out, "bool  isBitmapRoute: ", isBitmapRoute);
    vxDumpLine(out, "long  pixelWidth,pixelHeight: ", static_cast<float>(pixelWidth),
               static_cast<float>(pixelHeight));
    vxDumpLine(out, "short textAntialiasing: ", textAntialiasing);
    vxDumpLine(out, "Num of streams: ", getNumOfStreams());
    targets.dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
