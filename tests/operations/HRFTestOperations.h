#pragma once

#include "operations/HRFOperation.h"

#include <functional>
#include <semaphore>

/// An operation made of a block.
class HRFBlockOperation : public HRFOperation
{
public:
    explicit HRFBlockOperation(std::function<void()> block) : m_block(std::move(block)) { }

protected:
    void main() override { m_block(); }

private:
    const std::function<void()> m_block;
};

/// Holds its queue from its start until it is opened.
class HRFGate : public HRFOperation
{
public:
    void waitUntilStarted() { m_hasStarted.acquire(); }
    void open() { m_isOpen.release(); }

protected:
    void main() override
    {
        m_hasStarted.release();
        m_isOpen.acquire();
    }

private:
    std::binary_semaphore m_hasStarted{0};
    std::binary_semaphore m_isOpen{0};
};
