#pragma once

#include <QString>

class QWidget;

// Lets a screen reader say a sentence at once: what has changed without the focus, such as why a text was
// refused or which value a closed list has come to.
namespace Announcement {

// The window is that of the widget. An empty text says nothing.
void Say(const QWidget& widget, const QString& text);

} // namespace Announcement
