#pragma once

#include "SheetStyle.h"

#include <QObject>
#include <array>

class KivSketcherSettings;

// The style of the sheets of this process. It is read at the start and then only when the sketcher is told
// that its grid or its snapping changed, so that sheets follow OK and go back on Cancel.
class SheetSettings : public QObject {
    Q_OBJECT

public:
    // Both are to outlive this object.
    SheetSettings(KivDraftingSettings& drafting, KivSketcherSettings& sketcher);
    ~SheetSettings() override;

    const SheetStyle& Style() const { return _style; }

signals:
    void Changed();

private:
    void Reread();

    KivDraftingSettings& _drafting;
    KivSketcherSettings& _sketcher;
    SheetStyle _style;
    std::array<unsigned int, 2> _callbacks;
};
