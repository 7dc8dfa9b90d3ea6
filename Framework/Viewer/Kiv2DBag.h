#pragma once

#include "Viewer/Kiv2DRepresentation.h"

#include <memory>
#include <vector>

// Representations that are shown together, the first one undermost. Owns them.
class Kiv2DBag : public KivClass<Kiv2DBag, Kiv2DRepresentation> {
public:
    static constexpr const char* Name = "Kiv2DBag";
    Kiv2DBag() : KivClass(Name) {}

    // Answers the representation, for its maker to keep a pointer to; a null one is not added.
    template <class Representation> Representation* Add(std::unique_ptr<Representation> representation)
    {
        Representation* const added = representation.get();
        if (added) _content.push_back(std::move(representation));
        return added;
    }
    // Destroys it at once, also while a notification of its manipulator is under way; one that is not in this
    // bag is left alone.
    void Remove(const Kiv2DRepresentation* representation);

    const std::vector<std::unique_ptr<Kiv2DRepresentation>>& Content() const { return _content; }

    void DrawOn(Kiv2DCanvas& canvas) const override;

private:
    std::vector<std::unique_ptr<Kiv2DRepresentation>> _content;
};
