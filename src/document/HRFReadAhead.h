#pragma once

#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class HRFFileImportOperation;

/// Reads the files of an import on all cores, somewhat ahead of the queue that makes the records.
class HRFReadAhead
{
public:
    explicit HRFReadAhead(std::vector<std::shared_ptr<HRFFileImportOperation>> operations);
    HRFReadAhead(const HRFReadAhead &) = delete;
    HRFReadAhead &operator=(const HRFReadAhead &) = delete;
    /// Waits for the files that are being read.
    ~HRFReadAhead();

private:
    void work(const std::stop_token &stop);
    std::shared_ptr<HRFFileImportOperation> next(const std::stop_token &stop);

    const std::vector<std::shared_ptr<HRFFileImportOperation>> m_operations;
    std::mutex m_mutex; ///< guards the members below
    std::size_t m_next = 0;
    std::size_t m_finished = 0;
    std::vector<std::jthread> m_threads;
};
