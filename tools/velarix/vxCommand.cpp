#include "velarix/vxCommand.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <sstream>

#include "host/vxInterface.h"
#include "host/vxLog.h"
#include "output/vxOutputWIN.h"
#include "output/vxStreamRecord.h"
#include "overlays/vxCurveFittingData.h"
#include "platform/vxTextCodec.h"

namespace Velarix {

namespace {

// The application kind the command reports to the engine; like a desktop
// host, it answers an empty script with an empty result.
constexpr short kAppTypeCommand = 1;

bool readScript(const vxCommandOptions& options, std::istream& in, std::string& bytes,
                std::string& message) {
    if (options.script == "-") {
        std::ostringstream text;
        text << in.rdbuf();
        bytes = std::move(text).str();
        return true;
    }
    std::ifstream file(options.script, std::ios::binary);
    if (!file) {
        message = "cannot read script '" + options.script + "': " + std::strerror(errno);
        return false;
    }
    std::ostringstream text;
    text << file.rdbuf();
    bytes = std::move(text).str();
    if (file.bad()) {
        message = "cannot read script '" + options.script + "'";
        return false;
    }
    return true;
}

std::wstring decodeScript(const std::string& bytes) {
    const bool bom = bytes.size() >= 3 && static_cast<unsigned char>(bytes[0]) == 0xEF &&
                     static_cast<unsigned char>(bytes[1]) == 0xBB &&
                     static_cast<unsigned char>(bytes[2]) == 0xBF;
    return vxFromUtf8(std::string_view(bytes).substr(bom ? 3 : 0));
}

const char* streamExtension(short formatCode) {
    switch (formatCode) {
        case kStreamGIF:
            return "gif";
        case kStreamJPEG:
            return "jpg";
        case kStreamTIFF:
            return "tif";
        case kStreamPNG:
            return "png";
        case kStreamBMP:
            return "bmp";
        case kStreamPICT:
            return "pict";
        case kStreamMeta:
            return "emf";
        case kStreamPDF:
            return "pdf";
        default:
            return nullptr;
    }
}

// Writes the streams a host would receive as DIR/stream-N.EXT; streams of
// a format the host has no type for are passed over, as the host does.
bool writeStreams(const vxInterface& engine, const std::string& folder, std::ostream& err) {
    const vxOutputWIN* output = engine.getOutput();
    const long count = engine.getNumOfStreams();
    long number = 0;
    for (long i = 0; output && i < count; ++i) {
        const vxStreamRecord* stream = output->getStream(i);
        const char* extension = stream ? streamExtension(stream->formatCode) : nullptr;
        if (!extension) continue;
        const std::string path = folder + "/stream-" + std::to_string(++number) + "." + extension;
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(stream->bytes.data()),
                   static_cast<std::streamsize>(stream->bytes.size()));
        if (!file) {
            err << "velarix: cannot write " << path << "\n";
            return false;
        }
    }
    return true;
}

int reportError(const vxInterface& engine, const vxCommandOptions& options, std::ostream& err) {
    std::wstring message;
    engine.getErrorMessage(message, options.languageID, options.flags);
    std::replace(message.begin(), message.end(), L'\r', L'\n');
    err << vxToUtf8(message);
    if (!message.empty() && message.back() != L'\n') err << '\n';
    return kExitScriptError;
}

// One line per fit, in the order the drawing made them; numbers to 12
// significant digits.
void printFits(const vxInterface& engine, std::ostream& out) {
    vxCurveFittingData fits;
    if (engine.hasCurveFittingData()) engine.getCurveFittingData(&fits);
    const std::streamsize precision = out.precision(12);
    for (long i = 0; i < fits.getNumOfItems(); ++i) {
        const vxCurveFittingDataItem& fit = fits.getItem(i);
        out << "chart=" << fit.chartIndex << " series=" << fit.seriesIndex << " type=" << fit.type
            << " r2=" << fit.corrCoefficient;
        for (long k = 0; k < fit.numOfCoefficients && k < 11; ++k) {
            out << " c" << k << '=' << fit.c[k];
        }
        out << '\n';
    }
    out.precision(precision);
}

}  // namespace

int vxRunCommand(const vxCommandOptions& options, std::istream& in, std::ostream& out,
                 std::ostream& err) {
    std::string bytes;
    std::string message;
    if (!readScript(options, in, bytes, message)) {
        err << "velarix: " << message << "\n";
        return kExitUsage;
    }
    if (options.log) vxLog::setFlags(true, false);
    vxLog::beginRun();
    vxLog::write("[vxCH_DrawChart] filePath: " + options.base);
    const std::wstring source = decodeScript(bytes);
    int status = kExitSuccess;
    if (!source.empty()) {
        auto engine = std::make_unique<vxInterface>(vxFromUtf8(options.base), L"",
                                                    options.languageID, kAppTypeCommand);
        if (!engine->isError()) engine->run(source);
        if (engine->isError()) {
            status = reportError(*engine, options, err);
        } else if (!options.streamsDir.empty() && !writeStreams(*engine, options.streamsDir, err)) {
            status = kExitUsage;
        } else if (options.fits) {
            printFits(*engine, out);
        }
        vxLog::withStream([&](std::ostream& log) { engine->dump(3, log); });
    }
    vxLog::endRun();
    return status;
}

int vxVelarixMain(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                  std::ostream& err) {
    vxCommandOptions options;
    std::string message;
    if (!vxParseCommandLine(args, options, message)) {
        err << "velarix: " << message << " (try velarix --help)\n";
        return kExitUsage;
    }
    if (options.help) {
        out << vxUsageText();
        return kExitSuccess;
    }
    if (options.version) {
        out << "velarix " << VELARIX_VERSION_TEXT << "\n";
        return kExitSuccess;
    }
    return vxRunCommand(options, in, out, err);
}

}  // namespace Velarix
