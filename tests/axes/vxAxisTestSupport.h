// A chart read from a script and laid out in a view of 400 by 300, for the
// tests of its axes.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisManager.h"
#include "drawing/vxChart.h"
#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "output/vxOutputWIN.h"
#include "script/vxScript.h"
#include "settings/vxError.h"
#include "settings/vxUserSettings.h"

namespace Velarix::test {

class ChartScript : public ::testing::Test {
protected:
    // Reads the calls after OpenDrawing(400; 300) and OpenChart(0; 0; 400;
    // 300) (or the frame given) in a new run, and lays the chart out; the
    // code of the first error, 0 for none.
    short run(const std::wstring& calls,
              const std::wstring& openChart = L"OpenChart(0; 0; 400; 300)") {
        script.reset();
        view.reset();
        settings = std::make_unique<vxUserSettings>(L"", L"", 1, 1);
        settings->setDefaults();
        view = std::make_unique<vxView>(settings.get());
        script = std::make_unique<vxScript>(settings.get(), &specs, view.get(), &output);
        script->tokenize(L"OpenDrawing(400; 300)\n" + openChart + L"\n" + calls);
        if (script->isError()) return script->getError()->getErrorCode();
        const float bounds[4] = {0, 0, 400, 300};
        view->setUp(bounds);
        return view->isError() ? view->getError()->getErrorCode() : 0;
    }
    std::wstring message(short level = 5) const {
        const vxError* e = script->isError() ? script->getError() : view->getError();
        std::wstring text;
        if (e) e->getMessage(text, 1, L"1" + std::to_wstring(level));
        return text;
    }
    vxChart& chart() const {
        return *dynamic_cast<vxChart*>(view->getObject(view->getNumOfObjects() - 1));
    }
    vxAxisItem& axis(long index) const { return *chart().getAxisManager()->getAxis(index); }

    std::unique_ptr<vxUserSettings> settings;
    vxDrawingSpecs specs;
    std::unique_ptr<vxView> view;
    vxOutputWIN output;
    std::unique_ptr<vxScript> script;
};

}  // namespace Velarix::test
