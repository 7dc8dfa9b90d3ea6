#pragma once

#include "Sheet/SheetStyle.h"

#include <QObject>
#include <vector>

class KivSettingRepository;
class KivSketcherSettings;

// The style of the sheets of this process. It is read at the start and then only when the sketcher is told
// that its grid or its snapping changed, so that sheets follow OK and go back on Cancel.
//
// A sketch follows what the sketcher is told of its geometry. OK on the page of these settings deliberately
// tells it nothing, so a sketch follows the repository's commits and rollbacks too.
class SheetSettings : public QObject {
    Q_OBJECT

public:
    // All are to outlive this object. Without a repository, what only it knows keeps its default.
    SheetSettings(KivDraftingSettings& drafting, KivSketcherSettings& sketcher,
                  KivSettingRepository* repository = nullptr);
    ~SheetSettings() override;

    const SheetStyle& Style() const { return _style; }
    const SheetSketchStyle& Sketch() const { return _sketch; }

signals:
    void Changed();

private:
    void Reread();
    void RereadSketch();

    KivDraftingSettings& _drafting;
    KivSketcherSettings& _sketcher;
    KivSettingRepository* _repository;
    SheetStyle _style;
    SheetSketchStyle _sketch;
    std::vector<unsigned int> _callbacks;
    unsigned int _listener = 0;
};
