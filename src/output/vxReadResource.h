// A picture built into the program, named by its resource number as text.
// A gradient resource brings the gradient it stands for; the pixels of a
// texture are made by the platform's side (vxReadResourceWIN).
#pragma once

#include <memory>
#include <string>

#include "output/vxReadExternal.h"

namespace Velarix {

class vxReadResource : public vxReadExternal {
public:
    vxReadResource();
    ~vxReadResource() override;

    short getType() const override { return kSourceResource; }
    std::unique_ptr<vxReadExternal> clone() const override;

    // The number must be a whole number (error 1000) that names a resource
    // (error 1180).
    bool setName(const std::wstring& name) override;

    long getResourceID() const { return resourceID; }
    // 0 a picture, 2 a linear gradient, 3 a radial gradient.
    short getKind() const { return kind; }
    bool isGradient() const { return gradient != nullptr; }
    const vxGradientPaint* getGradient() const override;

protected:
    explicit vxReadResource(const wchar_t* name);
    void dumpFields(std::ostream& out) const override;
    void copyTo(vxReadResource& to) const;

private:
    bool setResource(long id);

    long resourceID = 0;
    short kind = 0;
    std::unique_ptr<vxGradientPaint> gradient;
};

}  // namespace Velarix
