#pragma once

#include <QHash>
#include <QString>

struct HRFEntityDescription;

enum class HRFAttributeType : quint8 {
    Integer16,
    Integer32,
    Integer64,
    Decimal,
    Double,
    Float,
    String,
    Boolean,
    Date,
};

/// One attribute of an entity, and what those who show and edit it need to know.
struct HRFAttributeDescription
{
    QString name{};
    HRFAttributeType type = HRFAttributeType::String;
    /// Further facts by name, as the model states them.
    QHash<QString, QString> userInfo{};
    const HRFEntityDescription *entity = nullptr;
    /// Its place among the properties of the entity.
    int index = 0;

    bool isString() const { return type == HRFAttributeType::String; }
    bool isBoolean() const { return type == HRFAttributeType::Boolean; }
    bool isDate() const { return type == HRFAttributeType::Date; }
    /// Whether the type is a kind of number; a boolean is none.
    bool isNumeric() const;
    bool isFilename() const;
    bool isFilePath() const;
    bool isFileExtension() const;
    /// The file name, its extension, and every tag.
    bool isEditable() const;
    bool hasCustomTransformer() const;
    /// Name of the transformer that makes the shown text of a value (HRFValueTransformer); empty
    /// where the value is shown as it is.
    QString displayValueTransformerName() const;
    /// The way from a MetaFile record to the value: "tags.title".
    QString path() const;
    /// What the user calls it.
    QString localizedName() const;
    QString displayName() const { return localizedName(); }
    /// What the frame-description table says of it; empty where it says nothing.
    QString localizedDescription() const;
};
