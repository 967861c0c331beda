#include "veks/core/services.h"

// The build defines VEKS_LIBRARY_NAME, the file name of the library that this file goes into.
const VekLibraryVersion* veksGetLibVersion() {
  static constexpr VekLibraryVersion version = {
      4, 0, 19, 77, {'t', '7', 0, 0}, VEKS_LIBRARY_NAME, "v4.0", __DATE__};
  return &version;
}
