#pragma once

#include <QString>

#include <functional>
#include <vector>

class HRFMetaFile;
class HRFPrivateContext;

/// What conversions need of the list whose files they work on. All members are for the main thread,
/// but performBlockInBackgroundContext.
class HRFConversionHost
{
public:
    HRFConversionHost() = default;
    HRFConversionHost(const HRFConversionHost &) = delete;
    HRFConversionHost &operator=(const HRFConversionHost &) = delete;
    virtual ~HRFConversionHost() = default;

    /// Those of the shown files that are selected, in the order of the list.
    virtual std::vector<HRFMetaFile *> selectedFiles() const = 0;
    /// The files shown, in their order.
    virtual std::vector<HRFMetaFile *> arrangedFiles() const = 0;
    virtual void setSelectedFiles(const std::vector<HRFMetaFile *> &files) = 0;
    /// Names the undo action of the present event.
    virtual void setUndoActionName(const QString &name) = 0;
    /// Changes records by a block that works on the background context; see HRFPlaylist.
    virtual void performBlockInBackgroundContext(std::function<void(HRFPrivateContext &)> block,
                                                 bool wait = false,
                                                 std::function<void()> whenDone = {}) = 0;
};
