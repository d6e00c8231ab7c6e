#pragma once

#include "conversions/HRFConversionHost.h"
#include "store/HRFManagedObject.h"

#include <memory>

class HRFFileOperation;

/// What moving files needs of the list that they are in.
class HRFFileOperationHost : public HRFConversionHost
{
public:
    /// The record of a file; nullptr when it is gone.
    virtual HRFMetaFile *fileWithID(HRFObjectID objectID) const = 0;

    /// What is done when operations have ended, one after the other.
    struct Afterwork
    {
        /// In the queue behind the operations, on its thread.
        std::function<void()> inQueue{};
        /// Brings the records up to date, in place of what the list does by itself.
        std::function<void(HRFPrivateContext &)> refresh{};
        /// On the main thread.
        std::function<void()> whenDone{};
    };
    /// Queues operations on files.
    virtual void queueOperations(const std::vector<std::shared_ptr<HRFFileOperation>> &operations,
                                 const Afterwork &afterwork) = 0;
    /// Lets the user go on with the pattern of the last conversion.
    virtual void editPattern() = 0;
};
