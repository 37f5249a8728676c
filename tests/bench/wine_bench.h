// What the Wine benchmarks share: timing of a body, and the comparison of
// one of our routines with the bare Win32 calls it makes, printed as a ratio.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace frame {
struct Program;
}

inline constexpr int kRounds = 5;

template <class Body> double secondsFor(int iterations, Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < iterations; ++i)
    body();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The fastest of several alternating rounds of each side, so both see the
// same machine state.
template <class Ours, class Bare>
void compare(const char* what, double target, int iterations, Ours&& ours, Bare&& bare) {
  double bestOurs = 1e9, bestBare = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    bestBare = std::min(bestBare, secondsFor(iterations, bare));
    bestOurs = std::min(bestOurs, secondsFor(iterations, ours));
  }
  std::printf("%-14s %9.2f us/call, bare calls %9.2f us/call, ratio %.3f (target <= %.2f)\n", what,
              1e6 * bestOurs / iterations, 1e6 * bestBare / iterations, bestOurs / bestBare,
              target);
}

// The Internet Connection page's reader and Apply (wine_internet_bench.cpp).
void benchInternetConnection(frame::Program& program);
