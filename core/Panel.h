#pragma once
// The control panel's helpers: its height, showing and hiding value rows and groups.
#include "core/Session.h"

namespace qp {

void SizeControlPanel(Session& s);
// Gives the help line and its shadow the room between their top and the state line.
void FitHelpLine(Session& s);
void ShowValueRow(Session& s, int n);  // ShowValueRow1 .. ShowValueRow4 (and 5)
inline void ShowValueRow1(Session& s) { ShowValueRow(s, 1); }
inline void ShowValueRow2(Session& s) { ShowValueRow(s, 2); }
inline void ShowValueRow3(Session& s) { ShowValueRow(s, 3); }
inline void ShowValueRow4(Session& s) { ShowValueRow(s, 4); }
void ShowDrawWidthLimits(Session& s);
void HideDrawWidthLimits(Session& s);
void ShowColorOption(Session& s);
void HideColorOption(Session& s);
void ShowVariance(Session& s);
void HideVariance(Session& s);
void ApplyCrazyDrawMode(Session& s);
void StopAllTools(Session& s);

// The colours of a row's frame: live rows answer their bar, dim rows ignore it.
constexpr Colour kLiveFrame = 0xFF8080;
constexpr Colour kDimFrame = 0x808080;
bool rowIsLive(Session& s, int n);

}  // namespace qp
