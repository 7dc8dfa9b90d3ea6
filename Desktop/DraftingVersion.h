#pragma once

// The version of the programs, as the build says it.
#ifndef KIV_VERSION
#define KIV_VERSION "1.0.0"
#endif
