#pragma once

#include "Files/CopyQuestions.h"
#include "UiToolsExport.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QPushButton;

namespace Zorvane {

/**
 * Asks what to do about a name that is taken, with both files side by side. "Keep Both", by which
 * nothing is lost, is the default; Escape and closing mean Cancel. Modal; `exec` and then ask
 * `answer`.
 */
class ZORVANE_UITOOLS_EXPORT CopyCollisionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CopyCollisionDialog(const CopyCollision& collision, QWidget* parent = nullptr);

    CopyAnswer answer() const;

    /** Null where the collision doesn't allow the decision. */
    QPushButton* button(CopyDecision decision) const;
    /** Null where no further collision of the kind is to come. */
    QCheckBox* forAllBox() const { return m_forAll; }

private:
    QWidget* makeFiles(const CopyCollision& collision);
    QWidget* makeButtons(const CopyCollision& collision);
    QPushButton* makeButton(CopyDecision decision, const QString& text);

    CopyDecision m_decision = CopyDecision::Cancel;
    QCheckBox* m_forAll = nullptr;
};

} // namespace Zorvane
