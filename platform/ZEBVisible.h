// The library calls the host's companion libraries by their symbols, which a host may hide (-fvisibility=hidden).
#pragma once

#if defined(__GNUC__)
#define ZEB_VISIBLE __attribute__((visibility("default")))
#else
#define ZEB_VISIBLE
#endif
