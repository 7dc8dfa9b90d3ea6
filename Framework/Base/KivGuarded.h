#pragma once

#include <new>

// Does the work. Where memory runs out meanwhile that is an answer, not an exception.
template <class Work, class Answer> Answer KivGuarded(const Work& work, Answer withoutMemory)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return withoutMemory;
    }
}
