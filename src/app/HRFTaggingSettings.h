#pragma once

#include <QObject>

/// Makes changed settings of how tags are encoded and mapped take effect between two operations on
/// files, never in the middle of one.
class HRFTaggingSettings : public QObject
{
    Q_OBJECT
public:
    HRFTaggingSettings();

private:
    static void settingDidChange(const QString &key);
};
