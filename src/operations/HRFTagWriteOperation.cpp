#include "operations/HRFTagWriteOperation.h"

#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFErrorSolver.h"
#include "tags/HRFTagEngine.h"

#include <QCoreApplication>

#include <cerrno>
#include <map>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFTagWriteOperation", text);
}

/// Lets the owner write and everybody read the file.
HRFResult<void> makeWritable(const HRFFileReference &file)
{
    constexpr mode_t mode = 0755;
    if (::chmod(file.nativePath().constData(), mode) == 0)
        return {};
    HRFError error = HRFError::fromErrno(errno);
    error.recoverySuggestion = error.description;
    error.description =
        tr("The permissions of the file “%1” could not be changed").arg(file.displayName());
    error.path = file.displayPath();
    return std::unexpected(error);
}

QString errorKey(const HRFError &error)
{
    return error.domain + QString::number(error.code);
}

/// Whoever wants permissions fixed for all files can be asked about those that cannot be, too.
const QString unfixableKey = u"permissions cannot be fixed"_s;

} // namespace

QHash<QString, QVariant> HRFTagWriteOperation::changedValues() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_changedValues;
}

void HRFTagWriteOperation::setChangedValues(const QHash<QString, QVariant> &values)
{
    const std::lock_guard lock(m_fieldsMutex);
    m_changedValues = values;
}

void HRFTagWriteOperation::setAppliedAnswers(const std::shared_ptr<HRFAppliedAnswers> &answers)
{
    m_appliedAnswers = answers;
}

QHash<QString, QVariant> HRFTagWriteOperation::properties() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_properties;
}

QHash<QString, QVariant> HRFTagWriteOperation::audioProperties() const
{
    const std::lock_guard lock(m_fieldsMutex);
    return m_audioProperties;
}

void HRFTagWriteOperation::mergeEarlierValues(const QHash<QString, QVariant> &values)
{
    const std::lock_guard lock(m_fieldsMutex);
    for (const auto &[key, value] : values.asKeyValueRange())
        if (!m_changedValues.contains(key))
            m_changedValues.insert(key, value.isValid() ? value : QVariant::fromValue(nullptr));
}

void HRFTagWriteOperation::main()
{
    if (isCancelledWithBatch())
        return;
    for (HRFResult<void> written = write(); !written; written = write()) {
        setError(written.error());
        bool triesAgain = false;
        const auto ask = [&] {
            triesAgain = attemptRecoveryFromError(offeringToFixPermissions(written.error()));
        };
        HRFMainThread::run(ask, HRFMainThread::Wait::Yes);
        if (!triesAgain)
            return;
    }
    setError({});
    if (const auto batch = progress())
        batch->addCompleted();
    setSucceeded(true);
}

/// A file that is renamed while this works on it is tried again under its new name.
HRFResult<void> HRFTagWriteOperation::write()
{
    HRFResult<HRFFileReference> file = findFile();
    while (file) {
        HRFResult<void> written = write(*file);
        if (written)
            return written;
        const HRFFileReference tried = *file;
        file = findFile();
        if (!file || *file == tried)
            return written;
    }
    return std::unexpected(file.error());
}

HRFResult<void> HRFTagWriteOperation::write(const HRFFileReference &file)
{
    const auto engine = HRFTagEngine::initWithURL(file);
    if (!engine)
        return std::unexpected(engine.error());
    HRFResult<void> written = updateEngine(**engine);
    if (written)
        written = (*engine)->updateFileWithError();
    if (!written)
        return written;
    const std::lock_guard lock(m_fieldsMutex);
    m_properties = {{u"tagSize"_s, (*engine)->valueForKey(HRFTagKey::tagSize)}};
    m_audioProperties = {{u"tagVersion"_s, (*engine)->valueForKey(HRFTagKey::tagVersion)}};
    return {};
}

HRFResult<void> HRFTagWriteOperation::updateEngine(HRFTagEngine &engine)
{
    std::map<HRFTagKey, QVariant> values; // in an order of their own
    for (const auto &[name, value] : changedValues().asKeyValueRange()) {
        const auto key = HRFTagKeyForName(name.toStdString());
        HRFRequire(key.has_value(), "propertyName");
        values.emplace(*key, value);
    }
    for (const auto &[key, value] : values)
        engine.setValueForKey(value, key);
    return {};
}

HRFError HRFTagWriteOperation::offeringToFixPermissions(const HRFError &error)
{
    // Permissions that were fixed in vain are not the cause.
    if (!error.isPermissionError() || m_hasFixedPermissions)
        return error;
    const auto solver = HRFErrorSolver::solverWithError(error);
    const auto fix = [this] { return fixPermissions(); };
    solver->addRecoveryOptionWithLocalizedTitle(tr("Fix Permissions"), fix, HRFAnswerRole::Fix);
    solver->addCancelRecoveryOption();
    return solver->error();
}

/// A failure is presented; answers whether there was none.
bool HRFTagWriteOperation::fixPermissions()
{
    m_hasFixedPermissions = true;
    const HRFResult<void> fixed = makeWritable(fileURL());
    if (!fixed && isLast())
        HRFUserInteraction::current().presentError(fixed.error(), owner());
    else if (!fixed)
        presentSolver(*solverToContinue(fixed.error()), unfixableKey);
    return fixed.has_value();
}

bool HRFTagWriteOperation::attemptRecoveryFromError(const HRFError &error)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (const auto solver = HRFErrorSolver::solverOfError(error))
        return presentSolver(*solver, errorKey(error));
    if (!error.recoveryAttempter && !isLast())
        return presentErrorSolver(*solverToContinue(error), progress());
    return HRFUserInteraction::current().presentError(error, owner());
}

bool HRFTagWriteOperation::presentSolver(HRFErrorSolver &solver, const QString &key)
{
    std::optional<int> response;
    if (m_appliedAnswers && m_appliedAnswers->contains(key))
        response = m_appliedAnswers->value(key);
    const bool triesAgain = presentErrorSolver(solver, response, !isLast(), progress());
    if (m_appliedAnswers && response)
        m_appliedAnswers->insert(key, *response);
    return triesAgain;
}

/// Lets the user go on with the other files, or cancel the batch.
std::shared_ptr<HRFErrorSolver> HRFTagWriteOperation::solverToContinue(const HRFError &error) const
{
    const auto leaveOut = [] { return false; };
    const auto cancelBatch = [batch = progress()] {
        if (batch)
            batch->cancel();
        return false;
    };
    const auto solver = HRFErrorSolver::solverWithError(error);
    solver->addRecoveryOptionWithLocalizedTitle(tr("Continue"), leaveOut, HRFAnswerRole::Continue);
    solver->addRecoveryOptionWithLocalizedTitle(tr("Cancel"), cancelBatch, HRFAnswerRole::Cancel);
    return solver;
}
