#include "app/Program.h"

#include "app/Wiring.h"
#include "platform/EventLoop.h"
#include "tools/Tools.h"

namespace qp {

Program::Program(Runtime& rt, std::function<void()> quit)
    : f(rt), w(rt), s{m, f, rt, tools, &w}, quit_(std::move(quit)) {
  registerTools(tools);
  wireCanvas(s, [this] {
    quitRequested_ = true;
    s.rt.loop.close();  // a drawing that waits on the loop stops there
    if (quit_) quit_();
  });
}

void Program::start() { f.Show(); }

}  // namespace qp
