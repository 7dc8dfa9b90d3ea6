#pragma once

// A field in which a text may stand that its node has not got yet.
class NativeField {
public:
    // Enters it. False when it was refused: it stands there still, with the reason beside it.
    virtual bool CommitText() = 0;

protected:
    ~NativeField() = default;
};
