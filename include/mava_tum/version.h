/* The version of these headers, for the preprocessor. */
#ifndef MAVA_TUM_VERSION_H
#define MAVA_TUM_VERSION_H
/* SPDX-License-Identifier: Apache-2.0 */

/* The major number, which is also the SONAME: it alone may change a record's layout or a function's parameters. */
#define MAVA_TUM_VERSION_MAJOR 1
/* The minor number: new functions. */
#define MAVA_TUM_VERSION_MINOR 0
/* The patch number: corrections. */
#define MAVA_TUM_VERSION_PATCH 0

/* All three as one number to compare: 10203 is version 1.2.3. Minor and patch stay below 100. */
#define MAVA_TUM_VERSION (MAVA_TUM_VERSION_MAJOR * 10000 + MAVA_TUM_VERSION_MINOR * 100 + MAVA_TUM_VERSION_PATCH)

#endif
