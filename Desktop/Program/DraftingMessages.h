#pragma once

#ifndef Q_MOC_RUN // moc cannot read the comparison header of the standard library behind it
#include "Base/KivDiagnosticScope.h"
#endif

#include <QDialog>
#include <QTimer>

#include <vector>

class QPlainTextEdit;
class QToolButton;

// Everything that the framework has to say to the person, from the making of this object to its end.
class DraftingDiagnostics : public QObject {
    Q_OBJECT

public:
    // Whether each diagnostic goes to standard error as well.
    explicit DraftingDiagnostics(bool echoes);

    const std::vector<KivDiagnostic>& All() const { return _all; }

signals:
    // One more was said; it is the last of All.
    void Said();

private:
    void Take(const KivDiagnostic& diagnostic);

    // Of a process that runs for days; older ones are forgotten.
    static constexpr std::size_t kMost = 500;

    std::vector<KivDiagnostic> _all;
    bool _echoes;
    KivDiagnosticScope _scope;
};

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
