#pragma once

class KivDialog;
class KivEditorPage;
class QWidget;

// Builds the native widgets of a tree. From then on each shows its node.
namespace NativeBuilder {

// The page's surface, a child of the parent. Its widgets are made in reading order.
QWidget* Build(KivEditorPage& page, QWidget* parent);
// The same on a surface that shows the frame already and has no layout yet.
void Fill(KivDialog& frame, QWidget& surface);

} // namespace NativeBuilder
