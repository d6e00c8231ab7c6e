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
    /// Why nothing is done with a file, and, if that is wanted, what else may be of interest.
    void tellOfRefused(const HRFMetaFile &record, const HRFPlannedFile &planned,
                       bool tellsWarnings) const;
    /// Why a file stays where it is.
    void tellOfFailed(const HRFMetaFile &record, const HRFError &error) const;
    /// The same for a file that was named on standard error before.
    void printFailure(const HRFMetaFile &record, const HRFError &error) const;

private:
    void tellWarnings(const HRFMetaFile &record, const HRFPlannedFile &planned) const;
    void print(const HRFMetaFile &record, const HRFPlannedFile &planned) const;

    HRFListRun &m_run;
    const bool m_printsJSON;
};
