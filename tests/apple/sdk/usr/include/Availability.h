// Versions as readers of the system's headers compare them; the deployment target is the compiler's.
#pragma once

#define __MAC_10_12 101200
#define __MAC_10_13 101300
#define __MAC_10_14 101400
#define __MAC_10_15 101500
#define __MAC_11_0 110000
#define __MAC_12_0 120000

#define __MAC_OS_X_VERSION_MAX_ALLOWED __MAC_11_0
#define __MAC_OS_X_VERSION_MIN_REQUIRED __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
