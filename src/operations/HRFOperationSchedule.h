#pragma once

#include "operations/HRFProgress.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <tuple>
#include <vector>

class HRFOperation;

/// The operations of a queue in the order in which they are to run: by the segments between
/// barriers, then by priority, then as they came. Every step takes time logarithmic in their
/// number.
///
/// Operations outlive their queue at times, and tell their schedule what becomes of them; so it is
/// shared, apart from the queue. All members may be called from any thread.
class HRFOperationSchedule : public std::enable_shared_from_this<HRFOperationSchedule>
{
public:
    void add(const std::shared_ptr<HRFOperation> &operation);
    /// An operation that runs alone: after all that came before it, before all that come later.
    void addBarrier(const std::shared_ptr<HRFOperation> &operation);

    /// Runs operations on the calling thread until the schedule is closed.
    void work();
    /// Lets work() return as soon as no operation may start any more.
    void close();

    /// Those that are not finished, in the order in which they came, without barriers.
    std::vector<std::shared_ptr<HRFOperation>> operations() const;
    /// How many are not finished, barriers among them.
    std::size_t count() const;
    void waitUntilEmpty();

    const std::shared_ptr<HRFProgress> &progress() const { return m_progress; }

private:
    friend class HRFOperation;
    struct Entry
    {
        std::shared_ptr<HRFOperation> operation;
        quint64 segment;
        bool isBarrier;
    };
    /// Segment, reversed priority, number.
    using Rank = std::tuple<quint64, int, quint64>;

    // To be told by operations:
    void dependenciesDidFinish(quint64 number);
    void finish(HRFOperation &operation);

    // With m_mutex held:
    void insert(const std::shared_ptr<HRFOperation> &operation, bool isBarrier);
    static Rank rankOf(quint64 number, const Entry &entry);
    std::shared_ptr<HRFOperation> takeNext();

    const std::shared_ptr<HRFProgress> m_progress = std::make_shared<HRFProgress>();

    mutable std::mutex m_mutex; ///< guards the members below
    std::condition_variable m_hasWork;
    std::condition_variable m_isEmpty;
    std::map<quint64, Entry> m_entries; ///< by number
    std::set<Rank> m_ready;
    std::map<quint64, std::size_t> m_unfinished; ///< how many, by segment
    quint64 m_lastNumber = 0;
    quint64 m_segment = 0; ///< of the operations that come now
    bool m_isClosed = false;
};
