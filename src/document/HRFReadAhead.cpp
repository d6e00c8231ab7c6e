#include "document/HRFReadAhead.h"

#include "document/HRFFileImportOperation.h"
#include "kit/HRFMainThread.h"

#include <algorithm>

namespace {

/// How many files may be read before their turn. What is read stays in memory until then.
constexpr std::size_t mostAhead = 256;

} // namespace

HRFReadAhead::HRFReadAhead(std::vector<std::shared_ptr<HRFFileImportOperation>> operations)
    : m_operations(std::move(operations))
{
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t i = 0; i < std::min(cores, m_operations.size() / 2); ++i)
        m_threads.emplace_back([this](const std::stop_token &stop) { work(stop); });
}

HRFReadAhead::~HRFReadAhead() = default;

void HRFReadAhead::work(const std::stop_token &stop)
{
    while (const auto operation = next(stop))
        HRFMainThread::runLoggingFailures([&] { operation->readAhead(); });
}

std::shared_ptr<HRFFileImportOperation> HRFReadAhead::next(const std::stop_token &stop)
{
    const std::lock_guard lock(m_mutex);
    while (!stop.stop_requested() && m_next < m_operations.size()) {
        while (m_finished < m_next && m_operations[m_finished]->isFinished())
            ++m_finished;
        if (m_next < m_finished + mostAhead)
            return m_operations[m_next++];
        m_operations[m_finished]->waitUntilFinished();
    }
    return {};
}
