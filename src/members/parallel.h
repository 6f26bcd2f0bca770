// A small pool of worker threads for the runs of many members: each task is one index, taken in turn
// from a shared counter, so that the workers stay busy whatever a task costs.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace vn {

// The number of workers to use: `wanted` when above 0, else the machine's cores (at least 1).
int WorkerCount(int wanted);

// Runs task(i, worker) for i = 0 .. count-1 on `workers` threads (the caller's thread among them),
// worker in 0 .. workers-1; returns when all are done. A task is run once; which worker runs it is
// left to chance, so a task must touch only its own data and what it reads. `cancel`, when given
// and set, leaves the tasks not yet begun undone. A task must not throw.
void ParallelFor(std::size_t count, int workers, const std::function<void(std::size_t i, int worker)>& task,
                 const std::atomic<bool>* cancel = nullptr);

}  // namespace vn
