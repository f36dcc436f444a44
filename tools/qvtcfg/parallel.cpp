#include "parallel.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace qvtcfg {
namespace {

// Fewer calls are not worth another thread.
constexpr std::size_t kFewest = 16;

class Work {
 public:
  Work(std::size_t count, const std::function<void(std::size_t)>& work) : m_count(count), m_work(work) {}

  void run() {
    try {
      for (std::size_t i = m_next++; i < m_count; i = m_next++) {
        m_work(i);
        ++m_done;
      }
    } catch (...) {
      m_next = m_count;
      const std::scoped_lock lock(m_mutex);
      if (!m_error) m_error = std::current_exception();
    }
  }

  // Of a thread beside the one that waits.
  void run_and_tell() {
    run();
    const std::scoped_lock lock(m_mutex);
    ++m_ended;
    m_change.notify_one();
  }

  // Whether so many threads have ended before the time is over.
  bool wait(std::size_t threads, std::chrono::milliseconds time) {
    std::unique_lock lock(m_mutex);
    return m_change.wait_for(lock, time, [&] { return m_ended == threads; });
  }

  std::size_t done() const { return m_done; }

  void rethrow() const {
    if (m_error) std::rethrow_exception(m_error);
  }

 private:
  std::size_t m_count;
  const std::function<void(std::size_t)>& m_work;
  std::atomic<std::size_t> m_next = 0;
  std::atomic<std::size_t> m_done = 0;
  std::mutex m_mutex;
  std::condition_variable m_change;
  std::size_t m_ended = 0;
  std::exception_ptr m_error;
};

void tell_progress(Work& work, std::size_t threads, std::size_t count, const std::string& what) {
  using std::chrono::milliseconds;
  if (work.wait(threads, milliseconds(1000))) return;
  do {
    std::fprintf(stderr, "\r%zu of %zu %s", work.done(), count, what.c_str());
  } while (!work.wait(threads, milliseconds(100)));
  std::fputs("\r\033[K", stderr);
}

}  // namespace

void for_each_in_parallel(std::size_t count, const std::function<void(std::size_t)>& call, const std::string& what) {
  const bool tells = isatty(STDERR_FILENO) != 0;
  const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
  std::size_t threads = std::min(cores, (count + kFewest - 1) / kFewest);
  if (!tells && threads > 0) --threads;  // this one works as well
  Work work(count, call);
  std::vector<std::jthread> others;
  for (std::size_t i = 0; i < threads; ++i) others.emplace_back([&] { work.run_and_tell(); });
  if (tells) {
    tell_progress(work, threads, count, what);
  } else {
    work.run();
  }
  others.clear();
  work.rethrow();
}

}  // namespace qvtcfg
