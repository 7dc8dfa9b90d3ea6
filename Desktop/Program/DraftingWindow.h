#pragma once

#ifndef Q_MOC_RUN // moc cannot read the comparison header of the standard library behind it
#include "Program/DraftingOptions.h"
#endif

#include <QMainWindow>

class DraftingDiagnostics;
class DraftingTree;
class KivSketcherSettings;
class QLabel;
class SettingsWatch;
class SheetSettings;
class SheetView;

// The main window of the drafting workbench: the sheet, the tree beside it, and the way to the options.
class DraftingWindow : public QMainWindow {
    Q_OBJECT

public:
    // Both are to outlive the window. administrator is the layer that is edited, or empty.
    DraftingWindow(const SheetSettings& settings, const DraftingDiagnostics& diagnostics,
                   const QString& administrator);

    QSize sizeHint() const override { return {1180, 760}; }
    SheetView& Sheet() const { return *_sheet; }
    DraftingOptions& Options() { return _options; }

    void OpenOptions(const KivUnicodeString& page = {});
    // From now on sheets and open options show what other programs change. Both are to outlive the window.
    void Follow(const SettingsWatch& watch, KivSketcherSettings& sketcher);
    // Asks for the size of the new drawing, unless the settings say not to.
    void Welcome();

protected:
    // Open options are canceled: nothing half changed is left behind.
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildTree();
    void BuildStatus();
    void OpenLog();
    void OpenAbout();

    const SheetSettings& _settings;
    const DraftingDiagnostics& _diagnostics;
    SheetView* _sheet;
    DraftingOptions _options;
};
