#pragma once

#include "Dialog/KivDlgSpinner.h"
#include "Native/NativeBubble.h"
#include "Native/NativePiece.h"

#include <QAbstractSpinBox>
#include <QPointer>

// A field for a number. The tree prints and reads it: here no digit is checked, so that every notation the
// tree understands can be typed.
class NativeSpinner : public QAbstractSpinBox, public NativePieceFor<KivDlgSpinner>, public NativeField {
public:
    NativeSpinner(KivDialog& node, QWidget* parent);
    ~NativeSpinner() override;

    bool CommitText() override;
    void DropText() override { ShowValue(); }
    // A refused text stays whatever the node does: nothing has to wait for it.
    bool IsTyping() const override { return IsWaiting() && _refusal.isEmpty(); }
    // The reason while a refused text stands in the field, else empty.
    const QString& Refusal() const { return _refusal; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void stepBy(int steps) override;

protected:
    void ShowNode() override;
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // Whether the text is not what the tree has printed.
    bool IsWaiting() const;
    void ShowValue();
    void Describe();
    void Refuse(const QString& why);
    void ForgetRefusal();
    void Say(const QString& text);

    QString _shown; // what the tree had printed last, to see whether it has moved under what is being typed
    QString _refusal;
    NativeMark _mark;
    QPointer<NativeBubble> _bubble;
};
