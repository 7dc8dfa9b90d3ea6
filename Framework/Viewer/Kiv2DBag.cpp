#include "Viewer/Kiv2DBag.h"

void Kiv2DBag::Remove(const Kiv2DRepresentation* representation)
{
    std::erase_if(_content, [&](const auto& held) { return held.get() == representation; });
}

void Kiv2DBag::DrawOn(Kiv2DCanvas& canvas) const
{
    for (const auto& representation : _content) representation->DrawOn(canvas);
}
