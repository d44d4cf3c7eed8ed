#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Design/Quantity.h"

#include <QtWidgets/QWidget>

#include <map>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DesignSession;
class EngineeringSpinBox;

/**
 * Spin boxes for what the selected object measures; hidden for objects that measure nothing. Asks
 * for changes and shows what the session has: it changes nothing by itself. The session must
 * outlive it.
 */
class QuantityPanel : public QWidget
{
    Q_OBJECT

public:
    explicit QuantityPanel(const DesignSession& session, QWidget* parent = nullptr);

    /** Also for the same object after a change. */
    void show(const GUIdentifier& object);
    EngineeringSpinBox& spinBox(Quantity quantity) const { return *m_rows.at(quantity).spinBox; }

Q_SIGNALS:
    /** The user has given the object another value; `noValue` for none. */
    void edited(const Zorvane::GUIdentifier& object, Zorvane::Workbench::Quantity quantity,
                double value);
    /** A text that is no value was left where it was typed, and is gone now. */
    void refused(const QString& reason);

private:
    struct Row
    {
        QLabel* label;
        EngineeringSpinBox* spinBox;
    };

    Row createRow(Quantity quantity);
    void leaveObject();
    bool showRow(Quantity quantity);

    const DesignSession& m_session;
    std::map<Quantity, Row> m_rows;
    GUIdentifier m_object;
};

} // namespace Zorvane::Workbench
