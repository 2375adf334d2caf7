#pragma once
// What a script or a command line may ask for. Past these a script is refused with exit status 2
// and the line, before anything runs, instead of running for ever or out of memory.
namespace qp::script {

// A script file: 16 MiB, and 1 MiB (1,048,576 characters) on one line.
constexpr long long kMaxScriptBytes = 16LL * 1024 * 1024;
constexpr long long kMaxLineChars = 1024LL * 1024;
// One `wait`: a day, in milliseconds. The clock of a headless run is virtual, but every tick of a
// running timer within the wait is still played.
constexpr long long kMaxWaitMs = 24LL * 60 * 60 * 1000;
// `--screen WxH`: each side 1 to 16384 pixels.
constexpr int kMaxScreenSide = 16384;

}  // namespace qp::script
