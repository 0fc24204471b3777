// A roll in the whole program without its window system: recorded, counted, drawn, and taken back. The argument is the
// number of rolls that the game has seen.
#include <benchmark/benchmark.h>

#include "../core/rolls.h"
#include "../mainwindow/main_window.h"
#include "../tests/scripted_services.h"
#include "games.h"

namespace {

void Roll(benchmark::State& run) {
  tests::ScriptedServices services;
  mainwindow::MainWindow window(services);
  if (window.Load() != mainwindow::Started::Yes) return run.SkipWithError("the program did not start");
  bench::AddRolls(window.State.game, static_cast<int>(run.range(0)));
  for (auto _ : run) {
    window.F1_mnuExtraAutoDice_Click();
    core::UndoLastRoll(window.State, window);
  }
  if (core::CountTotalRolls(window.State.game) != run.range(0)) run.SkipWithError("a roll was not taken back");
}

BENCHMARK(Roll)->Arg(0)->Arg(36)->Arg(499);

}  // namespace
