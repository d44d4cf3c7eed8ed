#include "Workbench/Writing/SettingsFile.h"

#include <QtCore/QDataStream>
#include <QtCore/QFileDevice>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QVariant>

namespace Zorvane::Workbench {

namespace {

/** Marks a value of a type that JSON doesn't have. */
const QString s_binaryKey = QStringLiteral("binary");

QJsonValue toJsonValue(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
        return QJsonValue::fromVariant(value);
    default:
        break;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return QJsonObject{{s_binaryKey, QString::fromLatin1(bytes.toBase64())}};
}

QVariant fromJsonValue(const QJsonValue& value)
{
    if (!value.isObject())
        return value.toVariant();
    const QByteArray text = value.toObject().value(s_binaryKey).toString().toLatin1();
    QDataStream stream(QByteArray::fromBase64(text));
    QVariant result;
    stream >> result;
    return result;
}

bool readSettings(QIODevice& device, QSettings::SettingsMap& settings)
{
    const QByteArray content = device.readAll();
    const QJsonDocument document = QJsonDocument::fromJson(content);
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        settings.insert(entry.key(), fromJsonValue(entry.value()));
    return document.isObject() || content.isEmpty();
}

bool writeSettings(QIODevice& device, const QSettings::SettingsMap& settings)
{
    QJsonObject object;
    for (auto entry = settings.begin(); entry != settings.end(); ++entry)
        object.insert(entry.key(), toJsonValue(entry.value()));
    const QByteArray content = QJsonDocument(object).toJson();
    auto* const file = qobject_cast<QFileDevice*>(&device);
    // Qt puts the file in place of the old one even if flushing it fails.
    return device.write(content) == content.size() && (!file || file->flush());
}

} // namespace

QSettings::Format settingsFileFormat()
{
    static const QSettings::Format s_format =
        QSettings::registerFormat(QStringLiteral("json"), &readSettings, &writeSettings);
    return s_format;
}

bool storeSetting(const QString& key, const QVariant& value)
{
    QSettings settings;
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace Zorvane::Workbench
