// The figure brushes and the Text Brush on a 4096 x 4096 canvas, each stamp beside the bare
// drawing it makes in the same run. A stamp is a tick of the brush's timer: the colour step and
// the drawing, with no copy of the canvas.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <map>
#include <memory>

#include "bench/Summary.h"
#include "app/Program.h"
#include "platform/Headless.h"
#include "platform/Memory.h"
#include "tools/FigureBrush.h"
#include "tools/TextTools.h"

namespace {

constexpr int kSide = 4096;
// Well inside the canvas, and low enough that the largest figure stays within 16-bit twips.
constexpr qp::Single kAt = 1500 * 15;

struct Session {
  qp::HeadlessRuntime headless;
  std::unique_ptr<qp::Program> program;
  explicit Session(qp::Menu& (*mode)(qp::frmCanvas&)) {
    program = std::make_unique<qp::Program>(headless.rt());
    program->start();
    mode(program->f).raiseClick();
    program->f.vColmode.Value = 1;  // Rainbow: the colour steps at every stamp
    program->m.CurrentFile = "bench.bmp";
    program->f.PicPaint.Width = kSide * 15;
    program->f.PicPaint.Height = kSide * 15;
    program->f.PicPaint.raiseMouseDown(1, 0, kAt, kAt);  // the stroke's one snapshot
  }
  qp::frmCanvas& f() { return program->f; }
};

qp::Menu& brushes(qp::frmCanvas& f) { return f.mBrushes; }
qp::Menu& textBrush(qp::frmCanvas& f) { return f.mTxBrush; }

// The largest size, figures with many lines (Scope), circles (Bio) and ellipses (Saucer I).
void BM_FigureStamp(benchmark::State& state) {
  Session s(brushes);
  s.f().vVal1.Value = static_cast<int>(state.range(0));
  s.f().vVal2.Value = 20;
  for (auto _ : state) qp::tBrushTime_Timer(s.program->s);
}
BENCHMARK(BM_FigureStamp)->Arg(55)->Arg(36)->Arg(49);

void BM_BareFigure(benchmark::State& state) {
  Session s(brushes);
  qp::PictureBox& pic = s.f().PicPaint;
  const auto& parts = qp::FigureParts(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (const qp::FigurePart& p : parts) {
      if (p.kind == qp::FigurePart::Line)
        pic.Line(kAt + p.x1 * 20, kAt + p.y1 * 20, kAt + p.x2 * 20, kAt + p.y2 * 20, 0xFFFFFF);
      else
        pic.Circle(kAt + p.x1 * 20, kAt + p.y1 * 20, p.r * 20, 0xFFFFFF, p.start, p.end, p.aspect);
    }
  }
}
BENCHMARK(BM_BareFigure)->Arg(55)->Arg(36)->Arg(49);

void BM_TextBrushStamp(benchmark::State& state) {
  Session s(textBrush);
  s.f().vFont.Value = 72;
  s.f().PicPaint.FontName = "Arial";
  for (auto _ : state) {
    s.f().PicPaint.CurrentX = 1500;  // each stamp at the same place, as a move puts it
    s.f().PicPaint.CurrentY = 1500;
    qp::tGrdTx_Timer(s.program->s);
  }
}
BENCHMARK(BM_TextBrushStamp);

void BM_QPainterText(benchmark::State& state) {
  QImage img(kSide, kSide, QImage::Format_RGB32);
  img.fill(Qt::black);
  QFont font("Arial");
  font.setPixelSize(96);  // 72 points
  font.setStyleStrategy(QFont::NoAntialias);
  for (auto _ : state) {
    QPainter p(&img);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QPoint(100, 100 + 90), "Quillora");
  }
}
BENCHMARK(BM_QPainterText);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qp::keepPictureMemoryForReuse();
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_FigureStamp/55", "BM_BareFigure/55"},
      {"BM_FigureStamp/36", "BM_BareFigure/36"},
      {"BM_FigureStamp/49", "BM_BareFigure/49"},
      {"BM_TextBrushStamp", "BM_QPainterText"},
  });
  benchmark::Shutdown();
  return 0;
}
