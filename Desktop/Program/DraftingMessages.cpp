#include "Program/DraftingMessages.h"

#include "Common/NativeText.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

constexpr std::chrono::seconds kFade{15};

QStyle::StandardPixmap IconOf(KivDiagnostic::Severity severity)
{
    switch (severity) {
    case KivDiagnostic::Severity::Error:
        return QStyle::SP_MessageBoxCritical;
    case KivDiagnostic::Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case KivDiagnostic::Severity::Note:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

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

DraftingDiagnostics::DraftingDiagnostics(bool echoes)
    : _echoes(echoes), _scope([this](const KivDiagnostic& diagnostic) {
          // Called at once in this thread; from another one in the next event.
          QMetaObject::invokeMethod(this, [this, diagnostic] { Take(diagnostic); });
          return true;
      })
{}

void DraftingDiagnostics::Take(const KivDiagnostic& diagnostic)
{
    if (_echoes) std::fprintf(stderr, "%s\n", diagnostic.Message().ConvertToChar());
    if (_all.size() == kMost) _all.erase(_all.begin());
    _all.push_back(diagnostic);
    emit Said();
}

DraftingMessage::DraftingMessage(const DraftingDiagnostics& diagnostics)
    : _diagnostics(diagnostics), _message(new QToolButton), _dismiss(new QToolButton)
{
    setObjectName("message");
    _message->setAutoRaise(true);
    _message->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _message->setFocusPolicy(Qt::TabFocus);
    connect(_message, &QToolButton::clicked, this, &DraftingMessage::LogWanted);
    _dismiss->setAutoRaise(true);
    _dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    _dismiss->setToolTip(DraftingText("MessageDismiss"));
    _dismiss->setAccessibleName(DraftingText("MessageDismiss"));
    _dismiss->setFocusPolicy(Qt::TabFocus);
    connect(_dismiss, &QToolButton::clicked, this, &DraftingMessage::Dismiss);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(_message);
    layout->addWidget(_dismiss);
    layout->addStretch();
    _fade.setSingleShot(true);
    connect(&_fade, &QTimer::timeout, this, &DraftingMessage::Dismiss);

    Dismiss();
    for (const KivDiagnostic& said : _diagnostics.All()) Say(said);
    connect(&_diagnostics, &DraftingDiagnostics::Said, this, [this] { Say(_diagnostics.All().back()); });
}

void DraftingMessage::Say(const KivDiagnostic& diagnostic)
{
    if (!_text.isEmpty() && diagnostic.severity < _severity) return;
    _severity = diagnostic.severity;
    _text = ToQt(diagnostic.Message());
    KivDiagnostic brief = diagnostic;
    brief.file = FromQt(QFileInfo(ToQt(diagnostic.file)).fileName());
    _short = ToQt(brief.Message()).replace('\n', ' ');
    _message->setIcon(style()->standardIcon(IconOf(_severity)));
    _message->setAccessibleName(_text);
    _message->setToolTip(DraftingText("MessageTip").arg(_text.toHtmlEscaped()));
    _message->show();
    _dismiss->show();
    if (_severity == KivDiagnostic::Severity::Error) {
        _fade.stop();
    } else {
        _fade.start(kFade);
    }
    Fit();
}

void DraftingMessage::Dismiss()
{
    _text.clear();
    _fade.stop();
    _message->hide();
    _dismiss->hide();
}

void DraftingMessage::Fit()
{
    const int room = width() - _dismiss->sizeHint().width() - 2 * _message->sizeHint().height();
    _message->setText(_message->fontMetrics().elidedText(_short, Qt::ElideRight, std::max(room, 40)));
}

// The longest message is cut; it never widens the window.
QSize DraftingMessage::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 20, _message->sizeHint().height()};
}

void DraftingMessage::resizeEvent(QResizeEvent*)
{
    Fit();
}

void DraftingMessage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) Fit();
    QWidget::changeEvent(event);
}

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
