#pragma once

#include <memory>

class HRFMainContext;

/// Keeps undo registration off while changes arrive that are no edits; on again afterwards,
/// whatever it was before. From any thread; others than the main thread wait for it.
class HRFUndoSuspension
{
public:
    explicit HRFUndoSuspension(std::weak_ptr<HRFMainContext> context);
    HRFUndoSuspension(const HRFUndoSuspension &) = delete;
    HRFUndoSuspension &operator=(const HRFUndoSuspension &) = delete;
    ~HRFUndoSuspension();

private:
    const std::weak_ptr<HRFMainContext> m_context;
};
