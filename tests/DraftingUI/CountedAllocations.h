#pragma once

// How often this program has allocated from the free store so far.
long CountedAllocations();
