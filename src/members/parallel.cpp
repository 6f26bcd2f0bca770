#include "members/parallel.h"

#include <algorithm>
#include <thread>
#include <vector>

namespace vn {

int WorkerCount(int wanted) {
  if (wanted > 0) return wanted;
  const unsigned cores = std::thread::hardware_concurrency();
  return cores == 0 ? 1 : static_cast<int>(cores);
}

void ParallelFor(std::size_t count, int workers, const std::function<void(std::size_t i, int worker)>& task,
                 const std::atomic<bool>* cancel) {
  if (count == 0) return;
  workers = std::max(1, std::min<int>(workers, static_cast<int>(std::min<std::size_t>(count, 1024))));
  std::atomic<std::size_t> next{0};
  auto work = [&](int worker) {
    for (;;) {
      if (cancel && cancel->load(std::memory_order_relaxed)) return;
      const std::size_t i = next.fetch_add(1, std::memory_order_relaxed);
      if (i >= count) return;
      task(i, worker);
    }
  };
  std::vector<std::thread> threads;
  threads.reserve(static_cast<std::size_t>(workers - 1));
  for (int w = 1; w < workers; ++w) threads.emplace_back(work, w);
  work(0);
  for (std::thread& t : threads) t.join();
}

}  // namespace vn
