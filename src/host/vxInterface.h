// The object between the host glue and the engine: one per drawing call.
// It owns the user settings and, per script, a vxDrawing; afterwards the
// glue reads the streams, the curve-fitting data and the error from it.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxDrawing;
class vxUserSettings;
class vxCurveFittingData;
class vxOutputWIN;

class vxInterface : public vxErrorHolder {
public:
    // appPath: the folder that relative file names resolve against.
    vxInterface(const std::wstring& appPath, const std::wstring& second, short languageID,
                short appType);
    ~vxInterface() override;

    // Runs one script. Without error the drawing stays, since the streams
    // the glue reads belong to its output.
    virtual void run(const std::wstring& script);
    // Runs each piece of the text that stands before a "@@".
    virtual void runScripts(const std::wstring& scripts);
    virtual long getNumOfStreams() const;
    virtual bool hasCurveFittingData() const;
    virtual void getCurveFittingData(vxCurveFittingData* dest) const;
    virtual void copyErrorTo(vxError* dest) const;
    // The composed message, with U+000D as line end.
    virtual void getErrorMessage(std::wstring& dest, short languageID,
                                 const std::wstring& flags = L"") const;
    virtual void dump(short depth, std::ostream& out) const;

    vxOutputWIN* getOutput() const;
    vxDrawing* getDrawing() const { return drawing.get(); }
    vxUserSettings* getUserSettings() const { return userSettings.get(); }

private:
    bool createDrawing();
    void checkDrawingError();
    void saveCurveFittingData();

    std::unique_ptr<vxDrawing> drawing;
    std::unique_ptr<vxUserSettings> userSettings;
    std::unique_ptr<vxCurveFittingData> curveFittingData;
    std::wstring scripts;
};

}  // namespace Velarix
