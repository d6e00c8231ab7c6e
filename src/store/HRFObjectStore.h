#pragma once

#include "kit/HRFError.h"
#include "store/HRFManagedObject.h"

#include <QSet>

#include <SQLiteCpp/SQLiteCpp.h>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

/// Errors of the store file; the code is SQLite's.
inline constexpr const char *HRFStoreErrorDomain = "SQLite";

/// The objects of a model in an SQLite file: one table per entity, one column per property.
///
/// The main context reads everything when the store is opened and keeps it in memory; from then on
/// the file is only written. Whole numbers and booleans are integers, dates are milliseconds since
/// 1970 (UTC), relationships are object IDs.
class HRFObjectStore
{
public:
    enum class Migrates { No, Yes };
    enum class Durability { Session, Lasting };

    struct Row
    {
        const HRFEntityDescription *entity;
        HRFObjectID objectID;
        HRFValues values;
    };
    struct Changes
    {
        std::vector<const HRFManagedObject *> stored{}; ///< whole
        std::vector<std::pair<const HRFManagedObject *, HRFPropertySet>> updated{};
        std::vector<std::pair<const HRFEntityDescription *, HRFObjectID>> deleted{};
    };

    /// Opens a store file, or makes it; without a path, in a file that goes with the store. With
    /// Migrates::Yes, properties that the model has gained since the file was written appear
    /// without values, and those that it has lost go.
    [[nodiscard]] static HRFResult<std::shared_ptr<HRFObjectStore>>
    open(const QString &path, std::shared_ptr<const HRFObjectModel> model, Migrates migrates,
         Durability durability);

    /// What the file held when it was opened; once.
    std::vector<Row> takeRows() { return std::move(m_rows); }
    /// Stores and deletes objects, all or none.
    [[nodiscard]] HRFResult<void> write(const Changes &changes);

    /// From any thread.
    HRFObjectID newObjectID() { return m_nextObjectID++; }
    /// Gives every text the storage of an equal one seen of late: most texts of a list stand in it
    /// many times. From any thread.
    void shareTexts(HRFValues &values);

    QString path() const { return m_path; }

private:
    HRFObjectStore(const QString &path, std::shared_ptr<const HRFObjectModel> model);

    void configure(Durability durability);
    void makeTables(Migrates migrates);
    void migrateTable(const HRFEntityDescription &entity, Migrates migrates);
    void dropUnknownTables();
    void readRows();
    void prepareStatements();
    void storeObject(const HRFManagedObject &object);
    void updateObject(const HRFManagedObject &object, HRFPropertySet properties);
    SQLite::Statement &updateStatement(const HRFEntityDescription &entity,
                                       HRFPropertySet properties);

    QString m_path;
    std::shared_ptr<const HRFObjectModel> m_model;
    SQLite::Database m_database;
    /// Per entity, by its place in the model:
    std::vector<SQLite::Statement> m_storeStatements;
    std::vector<SQLite::Statement> m_deleteStatements;
    /// By entity and properties; those used of late.
    std::map<std::pair<int, HRFPropertySet>, SQLite::Statement> m_updateStatements;
    std::vector<Row> m_rows;
    std::atomic<HRFObjectID> m_nextObjectID = 1;

    std::mutex m_textsLock; ///< guards the member below
    QSet<QString> m_texts;
};
