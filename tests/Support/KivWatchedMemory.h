#pragma once

// Asked before each allocation of a program that tests/Support/KivWatchedMemory.cpp is part of: whether there
// shall be memory. Null: there always is. Itself it must not allocate.
extern bool (*KivIsMemoryGiven)();
