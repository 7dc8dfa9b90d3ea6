#pragma once

#include <QDialog>
#include <QTimer>

class DraftingDiagnostics;
class QPlainTextEdit;

// The small panel in which every message of the framework can be read in full.
class DraftingLog : public QDialog {
    Q_OBJECT

public:
    // The diagnostics are to outlive the panel.
    DraftingLog(const DraftingDiagnostics& diagnostics, QWidget* parent);

private:
    void Fill();

    const DraftingDiagnostics& _diagnostics;
    QPlainTextEdit* _text;
    QTimer _filling; // once for all that is said in one event
};
