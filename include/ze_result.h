/* Result codes of every API function and command handler (unsigned 32-bit). */
#ifndef ZE_RESULT_H
#define ZE_RESULT_H

#define ZE_OK               0u          /* success */
#define ZE_ERR_NOT_FOUND    14u         /* entry not found in a table the library scans or reads */
#define ZE_ERR_EXISTS       15u         /* the entry is already present */
#define ZE_ERR_FULL         16u         /* table full */
#define ZE_ERR_PARAM        18u         /* invalid parameter, or the driver answered 0xf0000101 */
#define ZE_ERR_NO_MEMORY    27u         /* memory allocation failed */
#define ZE_ERR_NULL_PTR     31u         /* a required pointer argument is null */
#define ZE_ERR_BLACKMAC_FULL    42u     /* black-MAC list has no free entry */
#define ZE_ERR_BLACKMAC_MISSING 44u     /* black MAC to delete is not in the list */
#define ZE_ERR_UNKNOWN_VALUE    46u     /* the driver reports a value outside the known enumeration */
#define ZE_ERR_FAIL         0xffffffffu /* the driver failed with any other code */

/* The one driver code the library tells apart: it becomes ZE_ERR_PARAM. */
#define ZE_DRV_INVALID_PARAM 0xf0000101u

#endif
