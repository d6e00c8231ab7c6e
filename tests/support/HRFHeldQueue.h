#pragma once

#include "document/HRFMetaFileManager.h"

#include <latch>
#include <memory>
#include <utility>

/// Keeps the file-operation queue waiting, so that a test decides what it finds.
class HRFHeldQueue
{
public:
    HRFHeldQueue()
    {
        HRFMetaFileManager::fileOperationQueue().addBarrierBlock([gate = m_gate] {
            gate->hasStarted.count_down();
            gate->release.wait();
        });
        m_gate->hasStarted.wait();
    }
    HRFHeldQueue(const HRFHeldQueue &) = delete;
    HRFHeldQueue &operator=(const HRFHeldQueue &) = delete;
    ~HRFHeldQueue() { release(); }
    void release()
    {
        if (!std::exchange(m_isReleased, true))
            m_gate->release.count_down();
    }

private:
    struct Gate
    {
        std::latch hasStarted{1};
        std::latch release{1};
    };
    const std::shared_ptr<Gate> m_gate = std::make_shared<Gate>();
    bool m_isReleased = false;
};
