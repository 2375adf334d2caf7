#pragma once
// The program's command-line modes besides the plain window: running a script, recording one,
// the bundled demo and the monkey. Each returns the process's exit status.
#include <QSize>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace qp::script {

// Runs a script ("-" reads standard input). 0: every expect held; 1: one failed; 2: it cannot run.
// The pictures named open first, as they do when the program is started with them.
int runScript(const QString& file, bool show, QSize screen, const QStringList& pictures = {});
// The normal program in a window, writing every input of the user to file as a script.
int runRecording(const QString& file);
// Replays the bundled demo headless and saves the picture it paints.
int runDemo(const QString& outBmp);
// Random, seeded inputs over every menu item, control and surface. 0 when the program survived.
int runMonkey(long long events, std::uint32_t seed);

// `--screen WxH`: the size in pixels, or an empty size for text that is not two whole numbers
// from 1 to kMaxScreenSide.
QSize parseScreenSize(const QString& text);

// The demo's script text.
QString demoScript(const QString& outBmp);

}  // namespace qp::script
