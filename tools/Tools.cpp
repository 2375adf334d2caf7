#include "tools/Tools.h"

#include "core/ToolTable.h"

namespace qp {

void registerTools(ToolTable& table) {
  (void)table;  // each tool adds its hooks here as it is built
}

}  // namespace qp
