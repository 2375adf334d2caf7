#include "platform/Memory.h"

#include <malloc.h>

namespace qp {

void keepPictureMemoryForReuse() {
  constexpr int kMiB = 1024 * 1024;
  mallopt(M_MMAP_THRESHOLD, 256 * kMiB);  // blocks below this come from the reusable heap
  mallopt(M_TRIM_THRESHOLD, 512 * kMiB);  // freed memory stays for the next picture
}

}  // namespace qp
