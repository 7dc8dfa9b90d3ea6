#include "Native/NativePanel.h"

#include "Common/Announcement.h"
#include "Common/NativeText.h"
#include "Native/NativeDescription.h"
#include "Native/NativePiece.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidthInLetters = 48;

} // namespace

NativePanel* NativePanel::Open(QWidget& beside, const QString& name, const QString& text,
                               const QString& command)
{
    auto* panel = new NativePanel(beside);
    panel->Say(name, text, command);
    panel->PutBeside(beside);
    panel->show();
    Announcement::Say(beside, name + ". " + text);
    return panel;
}

void NativePanel::OpenLongHelp(const QWidget& window)
{
    QWidget* field = window.focusWidget();
    while (field && field != &window && field->whatsThis().isEmpty()) field = field->parentWidget();
    if (!field || field == &window) return;
    const auto* piece = dynamic_cast<NativePiece*>(field);
    QString text = field->whatsThis(), command;
    if (piece && piece->Node()) {
        const NativeDescription description(*piece->Node());
        if (const QString facts = description.Facts(); !facts.isEmpty()) text += "\n\n" + facts;
        command = description.Command();
    }
    Open(*field, WindowText("Help"), text, command);
}

void NativePanel::Say(const QString& name, const QString& text, const QString& command)
{
    setAccessibleName(name);
    setAccessibleDescription(text);
    const QFontMetrics metrics(_label->font());
    const QRect widest(0, 0, kWidthInLetters * metrics.averageCharWidth(), QWIDGETSIZE_MAX);
    _label->setText(text);
    _label->setMinimumSize(metrics.boundingRect(widest, Qt::TextWordWrap, text).size() + QSize(2, 0));
    _text = text;
    _command = command;
    _copyCommand->setVisible(!command.isEmpty());
}

NativePanel::NativePanel(QWidget& beside)
    : QFrame(&beside, Qt::Popup), _label(new QLabel(this)),
      _copyCommand(MakeCopyButton("CopyCommand", "CopyCommandHelp", _command)),
      _copy(MakeCopyButton("Copy", "CopyHelp", _text))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_WindowPropagation);
    setObjectName("NativePanel");
    setEnabled(true); // also beside a control that is not
    setFrameShape(QFrame::Box);
    _label->setTextFormat(Qt::PlainText);
    _label->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(_label);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(_copyCommand);
    buttons->addWidget(_copy);
    layout->addLayout(buttons);
    _copy->setFocus();
}

// The words are those of the moment at which it is pressed.
QPushButton* NativePanel::MakeCopyButton(const char* title, const char* help, const QString& words)
{
    auto* button = new QPushButton(WindowText(title), this);
    button->setToolTip(WindowText(help));
    button->setAccessibleDescription(WindowText(help));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, &words] {
        QGuiApplication::clipboard()->setText(words);
        close();
    });
    return button;
}

// Below what it explains, else above it, else at one of its sides: never over it while there is room
// elsewhere.
void NativePanel::PutBeside(const QWidget& widget)
{
    adjustSize();
    const QRect free = widget.screen()->availableGeometry();
    const QRect field(widget.mapToGlobal(QPoint()), widget.size());
    const int left = isRightToLeft() ? field.right() - width() : field.left();
    const QPoint corners[] = {{left, field.bottom()},
                              {left, field.top() - height()},
                              {field.right() + 1, field.top()},
                              {field.left() - width(), field.top()}};
    QRect place;
    for (const QPoint& corner : corners) {
        place = QRect(corner, size());
        place.moveLeft(std::max(free.left(), std::min(place.left(), free.right() - width() + 1)));
        place.moveTop(std::max(free.top(), std::min(place.top(), free.bottom() - height() + 1)));
        if (!place.intersects(field.adjusted(0, 0, 0, -1))) break;
    }
    move(place.topLeft());
}
