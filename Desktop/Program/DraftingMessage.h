#pragma once

#include <QTimer>
#include <QWidget>

#ifndef Q_MOC_RUN // moc cannot read the comparison header of the standard library behind it
#include "Base/KivDiagnostic.h"
#endif

class DraftingDiagnostics;
class QToolButton;

// The part of the status line that says the latest message of the framework. An error stays until it is
// dismissed or another one comes; what weighs less goes by itself and never covers an error. A click on it
// asks for the log.
class DraftingMessage : public QWidget {
    Q_OBJECT

public:
    // The diagnostics are to outlive the widget.
    explicit DraftingMessage(const DraftingDiagnostics& diagnostics);

    // In full; empty when there is none.
    const QString& Text() const { return _text; }

    QSize minimumSizeHint() const override;

signals:
    void LogWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Say(const KivDiagnostic& diagnostic);
    void Dismiss();
    void Fit();

    const DraftingDiagnostics& _diagnostics;
    QToolButton* _message;
    QToolButton* _dismiss;
    QString _text;  // in full
    QString _short; // with the name of the file alone, so that what went wrong comes early
    KivDiagnostic::Severity _severity = KivDiagnostic::Severity::Note;
    QTimer _fade;
};
