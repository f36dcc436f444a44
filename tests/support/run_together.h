#pragma once

#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

// Runs a job in several threads, which begin at the same time. The argument is the number of the thread.
template <class Job>
void run_together(int count, const Job& job) {
  std::atomic<int> waiting = count;
  std::vector<std::thread> threads;
  threads.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    threads.emplace_back([&, i] {
      for (--waiting; waiting != 0;) std::this_thread::yield();
      job(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}
