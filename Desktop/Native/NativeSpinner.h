#pragma once

#ifndef Q_MOC_RUN // moc cannot read the comparison header of the standard library behind it
#include "Dialog/KivDlgSpinner.h"
#include "Native/NativeBubble.h"
#include "Native/NativePiece.h"
#include "Parameter/KivControlUnit.h"
#endif

#include <QAbstractSpinBox>
#include <QPointer>

#include <array>

// A field for a number. The tree prints and reads it: here no digit is checked, so that every notation the
// tree understands can be typed.
class NativeSpinner : public QAbstractSpinBox, public NativePieceFor<KivDlgSpinner>, public NativeField {
    Q_OBJECT
    // Where screen readers find the number, which they may set as if it were typed; in the unit that is
    // shown.
    Q_PROPERTY(double value READ Value WRITE EnterValue)
    Q_PROPERTY(double minimum READ Minimum)
    Q_PROPERTY(double maximum READ Maximum)
    Q_PROPERTY(double singleStep READ Step)

public:
    NativeSpinner(KivDialog& node, QWidget* parent);
    ~NativeSpinner() override;

    bool CommitText() override;
    void DropText() override { ShowValue(); }
    // A refused text stays whatever the node does: nothing has to wait for it.
    bool IsTyping() const override { return IsWaiting() && _refusal.isEmpty(); }
    // The reason while a refused text stands in the field, else empty.
    const QString& Refusal() const { return _refusal; }

    double Value() const { return TreeNode() ? Unit().ToShown(TreeNode()->GetValue()) : 0.0; }
    void EnterValue(double value);
    double Minimum() const { return Range()[0]; }
    double Maximum() const { return Range()[1]; }
    double Step() const { return Range()[2]; }

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
    const KivControlUnit& Unit() const;
    std::array<double, 3> Range() const; // minimum, maximum, step; in that unit
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
