// One picture made out of one script. The drawing owns everything that
// belongs to the picture; nothing of it outlives the call but what the
// interface copies out (the error and the curve-fitting data).
//
// run(script) is a fixed sequence; each stage logs a line and is followed by
// an error test that ends the run:
//   1. init: reset the output and the curve-fitting data;
//   2. script->tokenize: parse the text and build the model;
//   3. (no size: end silently, without error and without picture)
//   4. view->setUp(bounds): layout;
//   5. view->setUpLayers(layerMng): graphic objects into layers;
//   6. view->setUpCurveFittingData;
//   7. output->setUp(drawingSpecs) and output->write(layerMng).
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxUserSettings;
class vxScript;
class vxView;
class vxOutputWIN;
class vxSelection;
class vxDrawingSpecs;
class vxLayerManager;
class vxCurveFittingData;

class vxDrawing : public vxErrorHolder {
public:
    explicit vxDrawing(vxUserSettings* settings);
    ~vxDrawing() override;

    void run(const std::wstring& s);

    vxScript* getScript() const { return script.get(); }
    vxView* getView() const { return view.get(); }
    vxOutputWIN* getOutput() const { return output.get(); }
    vxSelection* getSelection() const { return selection.get(); }
    vxDrawingSpecs* getDrawingSpecs() const { return drawingSpecs.get(); }
    vxLayerManager* getLayerManager() const { return layerMng.get(); }
    vxCurveFittingData* getCurveFittingData() const { return curveFittingData.get(); }

    void dump(short depth, std::ostream& out) const;

private:
    void init();
    void runStages(const std::wstring& s);
    bool takeError(const vxErrorHolder* member);

    vxUserSettings* userSettings;  // not owned
    // The destructor deletes these in a fixed order; the script's pointers
    // to the specs, the view and the output are not used while it goes.
    std::unique_ptr<vxView> view;
    std::unique_ptr<vxOutputWIN> output;
    std::unique_ptr<vxSelection> selection;
    std::unique_ptr<vxDrawingSpecs> drawingSpecs;
    std::unique_ptr<vxLayerManager> layerMng;
    std::unique_ptr<vxCurveFittingData> curveFittingData;
    std::unique_ptr<vxScript> script;
};

}  // namespace Velarix
