#include "Native/NativeDescription.h"

#include "Common/NativeText.h"
#include "Dialog/KivDlgLabel.h"

#include <QWidget>

namespace {

// Whom a text is asked of: a label explains nothing that its control does not explain better.
const KivDialog& Speaker(const KivDialog& node)
{
    if (!node.IsAKindOf(KivDlgLabel::Name)) return node;
    const KivDialog* control = static_cast<const KivDlgLabel&>(node).GetLabeledControl();
    return control ? *control : node;
}

// Tooltips would take a text with angle brackets for markup, and would not wrap a plain one.
QString Wrapped(const KivUnicodeString& text)
{
    if (text.IsEmpty()) return {};
    return "<qt>" + ToQt(text).toHtmlEscaped().replace(u'\n', "<br>") + "</qt>";
}

} // namespace

QString NativeDescription::Name() const
{
    return ToQt(_node.GetSpokenName());
}

QString NativeDescription::Tip() const
{
    return ToQt(Speaker(_node).GetTip());
}

QString NativeDescription::LongHelp() const
{
    const KivDialog& speaker = Speaker(_node);
    const KivUnicodeString help = speaker.GetLongHelp();
    return ToQt(help.IsEmpty() ? speaker.GetHelp() : help);
}

QString NativeDescription::Facts() const
{
    return ToQt(Speaker(_node).GetFacts());
}

QString NativeDescription::Command() const
{
    return ToQt(Speaker(_node).GetCommand());
}

// A screen reader, which reads every description, is spared the facts.
void NativeDescription::ShowOn(QWidget& widget) const
{
    const KivUnicodeString tip = Speaker(_node).GetTip(), facts = Speaker(_node).GetFacts();
    // Each is told to whoever listens, even if it is the same.
    const auto show = [&widget](QString (QWidget::*now)() const, void (QWidget::*set)(const QString&),
                                const QString& text) {
        if ((widget.*now)() != text) (widget.*set)(text);
    };
    show(&QWidget::toolTip, &QWidget::setToolTip,
         Wrapped(facts.IsEmpty() || tip.IsEmpty() ? tip : (tip + "\n").Append(facts)));
    show(&QWidget::whatsThis, &QWidget::setWhatsThis, LongHelp());
    show(&QWidget::accessibleName, &QWidget::setAccessibleName, Name());
    show(&QWidget::accessibleDescription, &QWidget::setAccessibleDescription, ToQt(tip));
}
