#include "Program/DraftingLog.h"

#include "Common/NativeText.h"
#include "Program/DraftingDiagnostics.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

const char* SeverityKey(KivDiagnostic::Severity severity)
{
    switch (severity) {
    case KivDiagnostic::Severity::Error:
        return "SeverityError";
    case KivDiagnostic::Severity::Warning:
        return "SeverityWarning";
    case KivDiagnostic::Severity::Note:
        break;
    }
    return "SeverityNote";
}

} // namespace

DraftingLog::DraftingLog(const DraftingDiagnostics& diagnostics, QWidget* parent)
    : QDialog(parent), _diagnostics(diagnostics), _text(new QPlainTextEdit)
{
    setObjectName("log");
    setWindowTitle(DraftingText("LogTitle"));
    setAttribute(Qt::WA_DeleteOnClose);
    _text->setReadOnly(true);
    _text->setAccessibleName(DraftingText("LogTitle"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* const copy = buttons->addButton(DraftingText("LogCopy"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(_text->toPlainText()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(_text);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 14);
    _filling.setSingleShot(true);
    connect(&_filling, &QTimer::timeout, this, &DraftingLog::Fill);
    connect(&_diagnostics, &DraftingDiagnostics::Said, &_filling, qOverload<>(&QTimer::start));
    Fill();
}

void DraftingLog::Fill()
{
    QStringList lines;
    for (const KivDiagnostic& said : _diagnostics.All())
        lines << DraftingText(SeverityKey(said.severity)).arg(ToQt(said.Message()));
    _text->setPlainText(lines.isEmpty() ? DraftingText("LogEmpty") : lines.join('\n'));
    _text->verticalScrollBar()->setValue(_text->verticalScrollBar()->maximum());
}
