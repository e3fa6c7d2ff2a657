/* Common definitions of the switch adapter API. */
#ifndef ZE_TYPES_H
#define ZE_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define ZE_API __attribute__((visibility("default")))
#else
#define ZE_API
#endif

#ifdef __cplusplus
#define ZE_BEGIN_DECLS extern "C" {
#define ZE_END_DECLS }
#else
#define ZE_BEGIN_DECLS
#define ZE_END_DECLS
#endif

#endif
