#include "NativeDescription.h"

#include "Dialog/KivDlgLabel.h"
#include "NativeText.h"

#include <QWidget>

namespace {

// A label may name the frame that wraps a control and its padlock.
const KivDlgLabel* LabelOf(const KivDialog& node)
{
    if (const KivDlgLabel* label = node.GetLabel()) return label;
    const KivDialog* parent = node.GetParentDialog();
    return parent ? parent->GetLabel() : nullptr;
}

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

KivUnicodeString PlainTip(const KivDialog& node)
{
    if (!node.IsEnabled()) {
        const KivUnicodeString why = node.WhyDisabled();
        return why.IsEmpty() ? FromQt(WindowText("NotAvailable")) : why;
    }
    for (const KivUnicodeString& help : {node.GetHelp(), node.GetShortHelp(), node.GetLongHelp()}) {
        if (!help.IsEmpty()) return help;
    }
    return {};
}

} // namespace

QString NativeDescription::Name() const
{
    const KivUnicodeString title = _node.GetSpokenTitle();
    const bool isObjectName = title == KivUnicodeString(_node.KivCommand::GetName());
    const KivDlgLabel* label = LabelOf(_node);
    QString name = ToQt(isObjectName && label ? label->GetSpokenTitle() : title).trimmed();
    while (name.endsWith(u':')) name.chop(1);
    return name;
}

QString NativeDescription::Tip() const
{
    return ToQt(PlainTip(Speaker(_node)));
}

QString NativeDescription::LongHelp() const
{
    const KivDialog& speaker = Speaker(_node);
    const KivUnicodeString help = speaker.GetLongHelp();
    return ToQt(help.IsEmpty() ? speaker.GetHelp() : help);
}

void NativeDescription::ShowOn(QWidget& widget) const
{
    widget.setToolTip(Wrapped(PlainTip(Speaker(_node))));
    widget.setWhatsThis(LongHelp());
    widget.setAccessibleName(Name());
    widget.setAccessibleDescription(Tip());
}
