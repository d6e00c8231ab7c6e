#pragma once

#include "conversions/HRFFilePlan.h"

class HRFListRun;

/// How `rename` and `move` tell of one file.
class HRFPlacementReport
{
public:
    HRFPlacementReport(HRFListRun &run, bool printsJSON) : m_run(run), m_printsJSON(printsJSON) { }

    /// Where a file is to be, and what may be of interest about that.
    void tellOfPlanned(const HRFMetaFile &record, const HRFPlannedFile &planned) const;
    /// Where a file is now.
    void tellOfDone(const HRFMetaFile &record, const HRFFileReference &source,
                    const HRFFileReference &destination) const;
    /// Why a file stays where it is.
    void tellOfRefused(const HRFMetaFile &record, const HRFError &refusal) const;

private:
    void print(const HRFMetaFile &record, const HRFFileReference &source,
               const HRFFileReference &destination, const std::vector<HRFError> &warnings) const;

    HRFListRun &m_run;
    const bool m_printsJSON;
};
