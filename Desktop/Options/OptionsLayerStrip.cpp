#include "Options/OptionsLayerStrip.h"

#include "Common/NativeText.h"

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
