#pragma once

#include <utility>

class KivCommand;

// One node in the list of those who watch a command. Belongs to KivWeakPtr and KivCommand alone.
class KivWeakLink {
public:
    KivWeakLink() = default;
    KivWeakLink(const KivWeakLink& other) { Watch(other._target); }
    KivWeakLink& operator=(const KivWeakLink& other)
    {
        Watch(other._target);
        return *this;
    }
    ~KivWeakLink() { Watch(nullptr); }

protected:
    KivCommand* Target() const { return _target; }
    void Watch(KivCommand* target);

private:
    friend class KivCommand;
    KivCommand* _target = nullptr;
    KivWeakLink* _next = nullptr;
    KivWeakLink** _link = nullptr; // the pointer that leads here
};

// A pointer to a command or dialog that turns null when its target is destroyed. Whoever points at a node of
// a dialog that he does not own uses this. Costs no allocation.
template <class T> class KivWeakPtr : private KivWeakLink {
public:
    KivWeakPtr() = default;
    KivWeakPtr(T* target) { Watch(target); }
    KivWeakPtr& operator=(T* target)
    {
        Watch(target);
        return *this;
    }

    T* Get() const { return static_cast<T*>(Target()); }
    T* operator->() const { return Get(); }
    T& operator*() const { return *Get(); }
    explicit operator bool() const { return Target() != nullptr; }
};
