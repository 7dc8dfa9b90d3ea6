#include "Program/DraftingMessage.h"

#include "Common/NativeText.h"
#include "Program/DraftingDiagnostics.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <algorithm>
#include <chrono>

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

} // namespace

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
