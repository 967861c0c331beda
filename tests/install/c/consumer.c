#include <stdio.h>
#include <veks.h>

int main(void) {
  const Vek32u src[4] = {1, 2, 3, 4};
  Vek32u dst[4];
  const VekStatus status = veksAndC_32u(src, 1, dst, 4);
  if (status != vekStsOk) puts(vekGetStatusString(status));
  printf("%u %u %u %u on %s\n", dst[0], dst[1], dst[2], dst[3], vekGetTargetName());
  printf("from %s\n", veksGetLibVersion()->libraryName);
  return 0;
}
