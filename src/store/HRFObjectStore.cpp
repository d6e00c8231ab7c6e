#include "store/HRFObjectStore.h"

#include <QDateTime>
#include <QFile>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// Quotes a name for SQL.
std::string quoted(const QString &name)
{
    return '"' + name.toStdString() + '"';
}

/// The declared type of a property's column.
std::string columnType(const HRFEntityDescription &entity, int property)
{
    if (entity.isRelationship(property))
        return "OBJECT";
    switch (entity.attributes[std::size_t(property)].type) {
    case HRFAttributeType::String:
        return "TEXT";
    case HRFAttributeType::Boolean:
        return "BOOLEAN";
    case HRFAttributeType::Date:
        return "DATE";
    case HRFAttributeType::Decimal:
    case HRFAttributeType::Double:
    case HRFAttributeType::Float:
        return "REAL";
    default:
        return "INTEGER";
    }
}

std::string columnDefinition(const HRFEntityDescription &entity, int property)
{
    return quoted(entity.propertyName(property)) + ' ' + columnType(entity, property);
}

void bindValue(SQLite::Statement &statement, int parameter, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString: {
        const QByteArray text = static_cast<const QString *>(value.constData())->toUtf8();
        statement.bind(parameter, text.toStdString());
        break;
    }
    case QMetaType::QDateTime:
        statement.bind(parameter, int64_t(value.toDateTime().toMSecsSinceEpoch()));
        break;
    case QMetaType::Double:
        statement.bind(parameter, value.toDouble());
        break;
    default:
        statement.bind(parameter, int64_t(value.toLongLong()));
    }
}

QVariant columnValue(const SQLite::Column &column, const std::string &type)
{
    if (column.isNull())
        return {};
    if (type == "TEXT")
        return QString::fromUtf8(column.getText(), column.getBytes());
    if (type == "BOOLEAN")
        return column.getInt() != 0;
    if (type == "DATE")
        return QDateTime::fromMSecsSinceEpoch(column.getInt64(), Qt::UTC);
    if (type == "REAL")
        return column.getDouble();
    return qlonglong(column.getInt64());
}

HRFError storeError(const SQLite::Exception &failure, const QString &path)
{
    return {.domain = QString::fromLatin1(HRFStoreErrorDomain),
            .code = failure.getErrorCode(),
            .description = QString::fromUtf8(failure.what()),
            .path = path};
}

} // namespace

HRFObjectStore::HRFObjectStore(const QString &path, std::shared_ptr<const HRFObjectModel> model)
    : m_path(path)
    , m_model(std::move(model))
    , m_database(QFile::encodeName(path).toStdString(),
                 SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
{
}

HRFResult<std::shared_ptr<HRFObjectStore>>
HRFObjectStore::open(const QString &path, std::shared_ptr<const HRFObjectModel> model,
                     Migrates migrates, Durability durability)
{
    try {
        std::shared_ptr<HRFObjectStore> store(new HRFObjectStore(path, std::move(model)));
        store->configure(durability);
        SQLite::Transaction transaction(store->m_database);
        store->makeTables(migrates);
        transaction.commit();
        store->readRows();
        store->prepareStatements();
        return store;
    } catch (const SQLite::Exception &failure) {
        return std::unexpected(storeError(failure, path));
    }
}

void HRFObjectStore::configure(Durability durability)
{
    // Nobody else uses the file, and a session is worth nothing after a crash.
    m_database.exec("PRAGMA locking_mode = EXCLUSIVE");
    if (durability == Durability::Session)
        m_database.exec("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF");
    else
        m_database.exec("PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL");
}

void HRFObjectStore::makeTables(Migrates migrates)
{
    for (const auto &entity : m_model->entities()) {
        if (m_database.tableExists(entity->name.toStdString())) {
            migrateTable(*entity, migrates);
            continue;
        }
        std::string columns = "id INTEGER PRIMARY KEY";
        for (int property = 0; property < entity->propertyCount(); ++property)
            columns += ", " + columnDefinition(*entity, property);
        m_database.exec("CREATE TABLE " + quoted(entity->name) + " (" + columns + ')');
    }
    dropUnknownTables();
}

void HRFObjectStore::migrateTable(const HRFEntityDescription &entity, Migrates migrates)
{
    QHash<QString, std::string> present;
    SQLite::Statement query(m_database, "PRAGMA table_info(" + quoted(entity.name) + ')');
    while (query.executeStep())
        present.insert(QString::fromUtf8(query.getColumn(1).getText()),
                       query.getColumn(2).getText());
    const std::string alter = "ALTER TABLE " + quoted(entity.name);
    present.remove(u"id"_s);
    for (int property = 0; property < entity.propertyCount(); ++property) {
        const auto found = present.constFind(entity.propertyName(property));
        if (found == present.constEnd() && migrates == Migrates::Yes)
            m_database.exec(alter + " ADD COLUMN " + columnDefinition(entity, property));
        else if (found == present.constEnd() || *found != columnType(entity, property))
            throw SQLite::Exception("The store was made for another model.", SQLITE_SCHEMA);
        present.remove(entity.propertyName(property));
    }
    for (const QString &name : present.keys())
        m_database.exec(alter + " DROP COLUMN " + quoted(name));
}

void HRFObjectStore::dropUnknownTables()
{
    QStringList unknown;
    SQLite::Statement query(m_database,
                            "SELECT name FROM sqlite_schema WHERE type = 'table' AND "
                            "name NOT LIKE 'sqlite_%'");
    while (query.executeStep())
        if (const auto name = QString::fromUtf8(query.getColumn(0).getText());
            !m_model->entityNamed(name))
            unknown.append(name);
    query.reset();
    for (const QString &name : unknown)
        m_database.exec("DROP TABLE " + quoted(name));
}

void HRFObjectStore::readRows()
{
    for (const auto &entity : m_model->entities()) {
        std::string columns = "id";
        std::vector<std::string> types;
        for (int property = 0; property < entity->propertyCount(); ++property) {
            columns += ", " + quoted(entity->propertyName(property));
            types.push_back(columnType(*entity, property));
        }
        SQLite::Statement query(
            m_database, "SELECT " + columns + " FROM " + quoted(entity->name) + " ORDER BY id");
        while (query.executeStep()) {
            HRFValues values;
            for (int property = 0; property < entity->propertyCount(); ++property)
                values.setValue(
                    property,
                    columnValue(query.getColumn(property + 1), types[std::size_t(property)]));
            const HRFObjectID objectID = query.getColumn(0).getInt64();
            m_nextObjectID = std::max(m_nextObjectID.load(), objectID + 1);
            m_rows.push_back({entity.get(), objectID, std::move(values)});
        }
    }
}

void HRFObjectStore::prepareStatements()
{
    for (const auto &entity : m_model->entities()) {
        std::string columns = "id";
        std::string parameters = "?";
        for (int property = 0; property < entity->propertyCount(); ++property) {
            columns += ", " + quoted(entity->propertyName(property));
            parameters += ", ?";
        }
        m_storeStatements.emplace_back(m_database,
                                       "INSERT OR REPLACE INTO " + quoted(entity->name) + " ("
                                           + columns + ") VALUES (" + parameters + ')');
        m_deleteStatements.emplace_back(m_database,
                                        "DELETE FROM " + quoted(entity->name) + " WHERE id = ?");
    }
}

HRFResult<void> HRFObjectStore::write(const Changes &changes)
{
    try {
        SQLite::Transaction transaction(m_database);
        for (const HRFManagedObject *object : changes.stored)
            storeObject(*object);
        for (const auto &[object, properties] : changes.updated)
            updateObject(*object, properties);
        for (const auto &[entity, objectID] : changes.deleted) {
            SQLite::Statement &statement = m_deleteStatements[std::size_t(entity->index)];
            statement.tryReset(); // it may have failed the last time
            statement.bind(1, int64_t(objectID));
            statement.exec();
        }
        transaction.commit();
        return {};
    } catch (const SQLite::Exception &failure) {
        return std::unexpected(storeError(failure, m_path));
    }
}

void HRFObjectStore::storeObject(const HRFManagedObject &object)
{
    SQLite::Statement &statement = m_storeStatements[std::size_t(object.entity().index)];
    statement.tryReset(); // it may have failed the last time
    statement.clearBindings();
    statement.bind(1, int64_t(object.objectID()));
    HRFForEachProperty(object.values().present(), [&](int property) {
        constexpr int firstProperty = 2;
        bindValue(statement, firstProperty + property, object.value(property));
    });
    statement.exec();
}

void HRFObjectStore::updateObject(const HRFManagedObject &object, HRFPropertySet properties)
{
    SQLite::Statement &statement = updateStatement(object.entity(), properties);
    statement.tryReset(); // it may have failed the last time
    statement.clearBindings();
    int parameter = 0;
    HRFForEachProperty(properties, [&](int property) {
        ++parameter;
        if (const QVariant value = object.value(property); value.isValid())
            bindValue(statement, parameter, value);
    });
    statement.bind(parameter + 1, int64_t(object.objectID()));
    statement.exec();
}

/// An event mostly changes the same properties of many objects.
SQLite::Statement &HRFObjectStore::updateStatement(const HRFEntityDescription &entity,
                                                   HRFPropertySet properties)
{
    constexpr std::size_t mostStatements = 64;
    const std::pair key(entity.index, properties);
    if (const auto found = m_updateStatements.find(key); found != m_updateStatements.end())
        return found->second;
    if (m_updateStatements.size() >= mostStatements)
        m_updateStatements.clear();
    std::string assignments;
    HRFForEachProperty(properties, [&](int property) {
        assignments +=
            (assignments.empty() ? "" : ", ") + quoted(entity.propertyName(property)) + " = ?";
    });
    return m_updateStatements
        .try_emplace(key, m_database,
                     "UPDATE " + quoted(entity.name) + " SET " + assignments + " WHERE id = ?")
        .first->second;
}

void HRFObjectStore::shareTexts(HRFValues &values)
{
    // The files of an album come one after the other: texts seen long ago need not be kept.
    constexpr qsizetype mostTexts = 10000;
    const std::lock_guard lock(m_textsLock);
    if (m_texts.size() >= mostTexts)
        m_texts.clear();
    HRFForEachProperty(values.texts(), [&](int property) {
        QString text = values.text(property);
        auto shared = m_texts.constFind(text);
        if (shared == m_texts.constEnd()) {
            text.squeeze(); // most are made in more room than they need
            shared = m_texts.insert(text);
        }
        values.setText(property, *shared);
    });
}
