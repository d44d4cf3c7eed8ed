#pragma once

#include "Workbench/Design/Quantity.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace Zorvane::Workbench {

/** What a text means that a user has typed as a value. */
struct TypedQuantity
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::TypedQuantity)

public:
    /** `noValue` for an empty text and for that which is shown without a value. */
    double value = noValue;
    /** Why the text is no value, translated; empty if it is one. */
    QString obstacle;

    /**
     * Takes numbers with a point or a comma, with groups of three digits and with an exponent, and
     * the usual units, such as "3.4 MN", "2 000 000", "1,5" and "97.8e3 N". What has two meanings
     * is an obstacle: "1,500", unless the comma is the decimal sign of the locale.
     */
    static TypedQuantity read(const QString& text, Quantity quantity, const QLocale& locale);
};

} // namespace Zorvane::Workbench
