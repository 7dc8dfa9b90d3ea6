#pragma once

#include "Base/KivUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

// The framework's list of values. Positions are 1-based: 1 is the first element, Size() the last.
template <class T> class KivListOf {
public:
    using Comparison = int (*)(const T*, const T*);

    int Size() const { return static_cast<int>(_items.size()); }
    void Append(const T& item) { _items.push_back(item); }
    void Append(const KivListOf& other)
    {
        _items.insert(_items.end(), other._items.begin(), other._items.end());
    }
    void RemoveAll() { _items.clear(); }

    T& operator[](int position) { return _items[static_cast<std::size_t>(position) - 1]; }
    const T& operator[](int position) const { return _items[static_cast<std::size_t>(position) - 1]; }

    auto begin() const { return _items.begin(); }
    auto end() const { return _items.end(); }

    // Keeps the first of equal elements, in the order they stand in. The elements must have operator<.
    void RemoveDuplicates()
    {
        std::vector<std::size_t> byValue(_items.size());
        for (std::size_t i = 0; i < byValue.size(); ++i) byValue[i] = i;
        std::stable_sort(byValue.begin(), byValue.end(),
                         [this](std::size_t a, std::size_t b) { return _items[a] < _items[b]; });
        std::vector<bool> kept(_items.size(), true);
        for (std::size_t i = 1; i < byValue.size(); ++i) {
            if (!(_items[byValue[i - 1]] < _items[byValue[i]])) kept[byValue[i]] = false;
        }
        std::size_t position = 0;
        std::erase_if(_items, [&](const T&) { return !kept[position++]; });
    }

    // Sorts so that compare(a, b) > 0 never holds for neighbors. The comparison may be no ordering at all
    // (one that never answers 0, say): a merge cannot overrun, whatever it is told, where std::sort can.
    void QuickSort(Comparison compare)
    {
        std::vector<T> merged(_items.size());
        for (std::size_t width = 1; width < _items.size(); width *= 2) {
            for (std::size_t start = 0; start < _items.size(); start += 2 * width) {
                const std::size_t middle = std::min(start + width, _items.size());
                const std::size_t end = std::min(start + 2 * width, _items.size());
                std::size_t left = start, right = middle;
                for (std::size_t to = start; to < end; ++to) {
                    const bool takeRight =
                        left == middle || (right < end && compare(&_items[left], &_items[right]) > 0);
                    merged[to] = std::move(takeRight ? _items[right++] : _items[left++]);
                }
            }
            _items.swap(merged);
        }
    }

private:
    std::vector<T> _items;
};

using KivListOfUnicodeString = KivListOf<KivUnicodeString>;
