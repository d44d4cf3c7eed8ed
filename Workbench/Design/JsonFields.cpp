#include "Workbench/Design/JsonFields.h"

#include <utility>

namespace Zorvane::Workbench {

GUIdentifier identifierIn(const QJsonValue& value)
{
    return GUIdentifier(value.toString().toStdString());
}

double quantityIn(const QJsonValue& value)
{
    return isQuantity(value.toDouble(noValue)) ? value.toDouble() : noValue;
}

ProblemList::ProblemList(QString file)
    : m_file(std::move(file))
{}

void ProblemList::add(const QString& where, const QString& reason)
{
    if (m_problems.size() < mostListed)
        m_problems.push_back({m_file, where, reason});
    else
        ++m_unlisted;
}

Problems ProblemList::take()
{
    if (m_unlisted > 0)
        m_problems.push_back({m_file, {}, tr("has %n more problem(s)", nullptr, m_unlisted)});
    m_unlisted = 0;
    return std::exchange(m_problems, {});
}

IdentifierRegister::IdentifierRegister(const std::map<GUIdentifier, QString>& taken)
    : m_taken(taken)
{}

QString IdentifierRegister::claim(const GUIdentifier& id, const QString& where)
{
    const auto elsewhere = m_taken.find(id);
    if (elsewhere != m_taken.end())
        return tr("the same identifier is used in %1, which is open").arg(elsewhere->second);
    const auto [entry, isNew] = m_own.emplace(id, where);
    return isNew ? QString() : tr("the same identifier is used at %1").arg(entry->second);
}

JsonFields::JsonFields(const QJsonObject& object, const QString& where, ProblemList& problems)
    : m_object(object)
    , m_where(where)
    , m_problems(problems)
{}

QString JsonFields::pathOf(const QString& key) const
{
    return m_where.isEmpty() ? key : QString(m_where + QLatin1Char('.') + key);
}

void JsonFields::report(const QString& key, const QString& reason) const
{
    m_problems.add(pathOf(key), reason);
}

std::optional<QString> JsonFields::requiredText(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    if (value.isString() && !value.toString().trimmed().isEmpty())
        return value.toString();
    if (value.isUndefined())
        report(key, tr("is missing"));
    else
        report(key, value.isString() ? tr("is empty") : tr("must be a text"));
    return std::nullopt;
}

QString JsonFields::text(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    if (!value.isUndefined() && !value.isString())
        report(key, tr("must be a text"));
    return value.toString();
}

double JsonFields::quantity(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    const double quantity = quantityIn(value);
    if (value.toDouble() >= noValue)
        report(key, tr("is too large"));
    else if (!value.isUndefined() && quantity >= noValue)
        report(key, tr("must be a number of at least 0"));
    return quantity;
}

GUIdentifier JsonFields::reference(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    const GUIdentifier id = identifierIn(value);
    if (!value.isUndefined() && id.isNull())
        report(key, tr("must be the identifier (UUID) of another entry"));
    return id;
}

std::optional<GUIdentifier> JsonFields::identifier(IdentifierRegister& identifiers) const
{
    const QString key = QStringLiteral("id");
    const std::optional<QString> text = requiredText(key);
    if (!text)
        return std::nullopt;
    const GUIdentifier id(text->toStdString());
    if (id.isNull()) {
        report(key, tr("\"%1\" is no UUID").arg(*text));
        return std::nullopt;
    }
    const QString obstacle = identifiers.claim(id, pathOf(key));
    if (obstacle.isEmpty())
        return id;
    report(key, obstacle);
    return std::nullopt;
}

QJsonArray JsonFields::list(const QString& key) const
{
    const QJsonValue value = m_object.value(key);
    if (!value.isUndefined() && !value.isArray())
        report(key, tr("must be a list"));
    return value.toArray();
}

} // namespace Zorvane::Workbench
