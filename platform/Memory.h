#pragma once

namespace qp {

// Pictures are large and come and go at every undo snapshot. By default the C library hands each
// block of more than a few hundred kilobytes straight back to the system when it is freed, so the
// next picture of the same size costs a page fault for every 4 KiB of it: on a 4096 x 4096 canvas
// that made one snapshot some fifty times dearer than copying the canvas. Keeping freed picture
// memory in the process for reuse makes a snapshot cost the one copy it really does.
void keepPictureMemoryForReuse();

}  // namespace qp
