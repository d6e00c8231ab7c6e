#pragma once

#include "operations/HRFFileOperation.h"

#include <QHash>
#include <QVariant>

class HRFErrorSolver;
class HRFTagEngine;

/// Answers of the user for all further errors of a kind: the index of the chosen option by error
/// key (domain and code, for most). The operations of a batch share one; it belongs to the main
/// thread.
using HRFAppliedAnswers = QHash<QString, int>;

/// Writes changed tags into a file.
class HRFTagWriteOperation : public HRFFileOperation
{
public:
    /// New values by property name; the null marker removes one.
    QHash<QString, QVariant> changedValues() const;
    void setChangedValues(const QHash<QString, QVariant> &values);
    /// To be set before the operation is in a queue.
    void setAppliedAnswers(const std::shared_ptr<HRFAppliedAnswers> &answers);

    /// What the saved file says anew, by attribute: of the record ("tagSize"), and of its audio
    /// properties ("tagVersion").
    QHash<QString, QVariant> properties() const;
    QHash<QString, QVariant> audioProperties() const;

    /// Takes over what an earlier write of the same file was to change; the values of this one win.
    void mergeEarlierValues(const QHash<QString, QVariant> &values);

protected:
    void main() override;
    /// Puts the change into the engine, which is saved afterwards.
    [[nodiscard]] virtual HRFResult<void> updateEngine(HRFTagEngine &engine);
    /// Asks the user what to do about an error, on the main thread; answers whether to try again.
    virtual bool attemptRecoveryFromError(const HRFError &error);

private:
    [[nodiscard]] HRFResult<void> write();
    [[nodiscard]] HRFResult<void> write(const HRFFileReference &file);
    HRFError offeringToFixPermissions(const HRFError &error);
    bool fixPermissions();
    bool presentSolver(HRFErrorSolver &solver, const QString &key);
    std::shared_ptr<HRFErrorSolver> solverToContinue(const HRFError &error) const;

    std::shared_ptr<HRFAppliedAnswers> m_appliedAnswers;
    bool m_hasFixedPermissions = false; ///< changed on the main thread while main() waits for it

    // Guarded by m_fieldsMutex:
    QHash<QString, QVariant> m_changedValues;
    QHash<QString, QVariant> m_properties;
    QHash<QString, QVariant> m_audioProperties;
};
