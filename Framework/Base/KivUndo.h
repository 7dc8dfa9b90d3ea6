#pragma once

#include <utility>

// Takes back at its end what was half done, unless all was done. The work must not fail.
template <class Work> class KivUndo {
public:
    explicit KivUndo(Work work) : _work(std::move(work)) {}
    ~KivUndo()
    {
        if (!_isDone) _work();
    }
    KivUndo(const KivUndo&) = delete;
    KivUndo& operator=(const KivUndo&) = delete;

    void Done() { _isDone = true; }

private:
    Work _work;
    bool _isDone = false;
};
