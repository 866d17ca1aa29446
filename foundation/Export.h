// Marks what libkyr.so offers to hosts and plug-ins. Everything in the library is built with
// hidden visibility, so a class or function without the mark stays inside.
#pragma once

#if defined(__GNUC__)
#define KYR_EXPORT __attribute__((visibility("default")))
#else
#define KYR_EXPORT
#endif
