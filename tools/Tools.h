#pragma once
namespace qp {
class ToolTable;
// Plugs every paint tool into the table of paint modes.
void registerTools(ToolTable& table);
}  // namespace qp
