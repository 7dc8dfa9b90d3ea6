#pragma once

class KivEditorPage;
class QWidget;

// Builds the native widgets of a page's tree. From then on each shows its node.
namespace NativeBuilder {

// The page's surface, a child of the parent. Its widgets are made in reading order.
QWidget* Build(KivEditorPage& page, QWidget* parent);

} // namespace NativeBuilder
