#include "Tests/Workbench/Design/DesignFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>

#include <filesystem>

namespace Zorvane::Testing {

QString uuidText(int number)
{
    return QStringLiteral("00000000-0000-4000-8000-%1").arg(number, 12, 10, QLatin1Char('0'));
}

GUIdentifier id(int number)
{
    return GUIdentifier(uuidText(number).toStdString());
}

QJsonObject entry(int id, const QString& name)
{
    return {{QStringLiteral("id"), uuidText(id)}, {QStringLiteral("name"), name}};
}

QJsonObject fileEntry(int id, const QString& name, const QString& kind, const QString& path)
{
    QJsonObject file = entry(id, name);
    file.insert(QStringLiteral("kind"), kind);
    file.insert(QStringLiteral("path"), path);
    return file;
}

QJsonObject designWithFiles(int id, const QString& name, const QJsonArray& files)
{
    QJsonObject design = entry(id, name);
    design.insert(QStringLiteral("version"), 2);
    design.insert(QStringLiteral("files"), files);
    return design;
}

QJsonObject smallDesign()
{
    const QString geometry = QStringLiteral("geometry");
    const QString kind = QStringLiteral("kind");
    const auto withGeometry = [&](int id, const QString& name) {
        QJsonObject object = entry(id, name);
        object.insert(geometry, uuidText(40));
        return object;
    };
    QJsonObject die = withGeometry(21, QStringLiteral("Die"));
    die.insert(kind, QStringLiteral("die"));
    QJsonObject draw = entry(20, QStringLiteral("Draw"));
    draw.insert(kind, QStringLiteral("draw"));
    draw.insert(QStringLiteral("tools"), QJsonArray{die, entry(22, QStringLiteral("Punch"))});
    QJsonObject blank = withGeometry(2, QStringLiteral("Blank"));
    blank.insert(QStringLiteral("thickness"), 1.25);
    blank.insert(QStringLiteral("material"), uuidText(30));
    QJsonObject steel = entry(30, QStringLiteral("Steel"));
    steel.insert(QStringLiteral("file"), uuidText(41));

    QJsonObject design =
        designWithFiles(1, QStringLiteral("Small"),
                        {fileEntry(40, QStringLiteral("Die mesh"), QStringLiteral("mesh"),
                                   QStringLiteral("geometry/die.stl")),
                         fileEntry(41, QStringLiteral("Card"), QStringLiteral("material"),
                                   QStringLiteral("steel.json"))});
    design.insert(QStringLiteral("blank"), blank);
    design.insert(QStringLiteral("parts"), QJsonArray{withGeometry(10, QStringLiteral("Cup"))});
    design.insert(QStringLiteral("operations"), QJsonArray{draw});
    design.insert(QStringLiteral("materials"), QJsonArray{steel});
    return design;
}

QByteArray toText(const QJsonObject& object)
{
    return QJsonDocument(object).toJson();
}

QString writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file of the test");
    return path;
}

void replaceFile(const QString& path, const QByteArray& content)
{
    const QString other = writeFile(path + QStringLiteral(".new"), content);
    // QFile's renaming replaces nothing, the standard library's does.
    std::filesystem::rename(other.toStdU16String(), path.toStdU16String());
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace Zorvane::Testing
