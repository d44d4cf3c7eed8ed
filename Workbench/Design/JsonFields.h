#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Design/Quantity.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <map>
#include <optional>

namespace Zorvane::Workbench {

/** The identifier that a JSON value holds as text; null if it holds none. */
GUIdentifier identifierIn(const QJsonValue& value);
/** The quantity that a JSON value holds as number; `noValue` if it holds none. */
double quantityIn(const QJsonValue& value);

/** Collects what is wrong with one design file, up to a number that a person can read. */
class ProblemList
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignReader)

public:
    static constexpr int mostListed = 100;

    explicit ProblemList(QString file);
    void add(const QString& where, const QString& reason);
    /** The problems, the last of them telling how many more there are. */
    Problems take();

private:
    QString m_file;
    Problems m_problems;
    int m_unlisted = 0;
};

/** The identifiers of one design file and of other designs, each of which may occur once. */
class IdentifierRegister
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignReader)

public:
    explicit IdentifierRegister(const std::map<GUIdentifier, QString>& taken);
    /** Empty if `id` was free and now belongs to `where`, else why it cannot be used. */
    QString claim(const GUIdentifier& id, const QString& where);

private:
    const std::map<GUIdentifier, QString>& m_taken;
    std::map<GUIdentifier, QString> m_own;
};

/**
 * Fetches the fields of one JSON object and reports those that are missing or of another type
 * than wanted. Holds references to the list and register given.
 */
class JsonFields
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignReader)

public:
    JsonFields(const QJsonObject& object, const QString& where, ProblemList& problems);

    const QJsonObject& object() const { return m_object; }
    /** "operations[1].name" for the field `key`. */
    QString pathOf(const QString& key) const;
    void report(const QString& key, const QString& reason) const;

    /** None, with a problem, unless it is a text of more than blanks. */
    std::optional<QString> requiredText(const QString& key) const;
    /** Empty if missing, and with a problem if no text. */
    QString text(const QString& key) const;
    /** `noValue` if missing, and with a problem unless a number that a quantity can be. */
    double quantity(const QString& key) const;
    /** Null if missing, and with a problem if no UUID. */
    GUIdentifier reference(const QString& key) const;
    /** None, with a problem, unless "id" holds a UUID that is free. */
    std::optional<GUIdentifier> identifier(IdentifierRegister& identifiers) const;
    /** Empty if missing, and with a problem if no list. */
    QJsonArray list(const QString& key) const;

private:
    QJsonObject m_object;
    QString m_where;
    ProblemList& m_problems;
};

} // namespace Zorvane::Workbench
