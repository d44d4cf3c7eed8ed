#pragma once

#include "Host/Identifiers/GUIdentifier.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace Zorvane::Testing {

/** A UUID's text that is always the same for the same number. */
QString uuidText(int number);
/** The identifier with that text. */
GUIdentifier id(int number);
/** {"id": ..., "name": ...} */
QJsonObject entry(int id, const QString& name);
QJsonObject fileEntry(int id, const QString& name, const QString& kind, const QString& path);
/**
 * A small whole design: id 1, blank 2, part 10, operation 20 with tools 21 and 22, material 30,
 * files 40 (mesh geometry/die.stl) and 41 (material steel.json).
 */
QJsonObject smallDesign();
/** A design with nothing in it but a name and files. */
QJsonObject designWithFiles(int id, const QString& name, const QJsonArray& files);
QByteArray toText(const QJsonObject& object);

/** Writes a file, making its folder; in place if it exists. Returns the path. */
QString writeFile(const QString& path, const QByteArray& content);
/** Writes another file and renames it over this one, as careful editors do. */
void replaceFile(const QString& path, const QByteArray& content);
QByteArray readFile(const QString& path);

} // namespace Zorvane::Testing
