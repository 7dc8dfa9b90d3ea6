#include "Options/OptionsStrips.h"

#include "Common/Announcement.h"
#include "Common/NativeText.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <utility>

namespace {

constexpr qsizetype kLinesShown = 4;
constexpr qsizetype kMessagesKept = 100;

} // namespace

OptionsLayerStrip::OptionsLayerStrip(const QString& layer, QWidget* parent) : QLabel(parent)
{
    // In the colors of what is chosen: nobody should take this window for that of a user.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
    setForegroundRole(QPalette::HighlightedText);
    setMargin(fontMetrics().height() / 2);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAccessibleName(WindowText("EditsLayer").arg(layer));
    // A long path may go on in the next line after each directory.
    QString path = layer;
    setText(WindowText("EditsLayer").arg(path.replace(u'/', QStringLiteral("/\u200b"))));
}

OptionsMessageStrip::OptionsMessageStrip(QWidget* parent)
    : QFrame(parent), _text(new QLabel(this)), _button(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setAccessibleName(WindowText("Messages"));

    auto* icon = new QLabel(this);
    const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(extent, extent));
    _text->setForegroundRole(QPalette::ToolTipText);
    _text->setTextFormat(Qt::PlainText);
    _text->setWordWrap(true);
    _text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* dismiss = new QToolButton(this);
    dismiss->setText(QStringLiteral("\u00d7")); // an icon of the style is black in the dark as well
    dismiss->setAutoRaise(true);
    dismiss->setToolTip(WindowText("DismissMessages"));
    dismiss->setAccessibleName(WindowText("DismissMessages"));
    connect(dismiss, &QToolButton::clicked, this, [this] { Clear(); });

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(_text, 1);
    layout->addWidget(_button, 0, Qt::AlignTop);
    layout->addWidget(dismiss, 0, Qt::AlignTop);
    _button->setAutoDefault(false);
    _button->hide();
    connect(_button, &QPushButton::clicked, this, [this] { std::exchange(_mend, {})(); });
    hide();
}

void OptionsMessageStrip::Add(const QString& message)
{
    if (_messages.contains(message)) return;
    if (_messages.size() >= kMessagesKept) _messages.removeFirst();
    _messages << message;
    Show();
}

void OptionsMessageStrip::Offer(const QString& message, const QString& button, const QString& help,
                                std::function<void()> mend)
{
    _mend = std::move(mend);
    _button->setText(button);
    _button->setToolTip(help);
    _button->setAccessibleDescription(help);
    _button->show();
    Add(message);
}

void OptionsMessageStrip::Clear()
{
    _messages.clear();
    _button->hide();
    hide();
}

void OptionsMessageStrip::Show()
{
    QStringList lines = _messages.mid(0, kLinesShown);
    if (const qsizetype left = _messages.size() - lines.size()) lines << WindowText("MessagesMore").arg(left);
    const QString text = lines.join(u'\n');
    _text->setText(text);
    _text->setToolTip(_messages.join(u'\n'));
    setAccessibleDescription(text);
    show();
    Announcement::Say(*this, text);
}
