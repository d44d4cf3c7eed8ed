#include "Files/CopyCollisionDialog.h"

#include "Files/CopyTexts.h"
#include "Files/PathText.h"
#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"

#include <QtCore/QLocale>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace Zorvane {

namespace {

constexpr int s_panelTextWidth = 250;

QString headline(CollisionKind kind)
{
    switch (kind) {
    case CollisionKind::ExistingFile:
        return Translator::translate("CopyCollisionDialog",
                                     "The target folder already has a file named \"%1\".");
    case CollisionKind::ProtectedFile:
        return Translator::translate(
            "CopyCollisionDialog",
            "The target folder already has a write-protected file named \"%1\". What replaces it "
            "will be write-protected, too.");
    case CollisionKind::SameFile:
        return Translator::translate(
            "CopyCollisionDialog",
            "\"%1\" in the target folder is the very file that is to be copied.");
    case CollisionKind::WithinBatch:
        return Translator::translate("CopyCollisionDialog",
                                     "More than one of the files to copy is named \"%1\".");
    case CollisionKind::NotAFile:
        return Translator::translate(
            "CopyCollisionDialog",
            "\"%1\" in the target folder is not a file and cannot be replaced.");
    }
    return {};
}

QString targetTitle(CollisionKind kind)
{
    switch (kind) {
    case CollisionKind::WithinBatch:
        return Translator::translate("CopyCollisionDialog", "Other file to copy");
    case CollisionKind::NotAFile:
        return Translator::translate("CopyCollisionDialog", "In the target folder");
    case CollisionKind::ExistingFile:
    case CollisionKind::ProtectedFile:
    case CollisionKind::SameFile:
        break;
    }
    return Translator::translate("CopyCollisionDialog", "File in the target folder");
}

QString forAllText(const CopyCollision& collision)
{
    if (collision.isLate)
        return Translator::translate("CopyCollisionDialog", "&Do this for all that follow");
    if (collision.remaining == 1)
        return Translator::translate("CopyCollisionDialog", "&Do this for the remaining one, too");
    return Translator::translate("CopyCollisionDialog", "&Do this for all %n remaining", nullptr,
                                 collision.remaining);
}

QLabel* makeLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    // Names may look like mark-up.
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* makeElidedLabel(const QString& text, QWidget* parent)
{
    QLabel* label = makeLabel(QString(), parent);
    const QString elided = label->fontMetrics().elidedText(text, Qt::ElideMiddle, s_panelTextWidth);
    label->setText(elided);
    if (elided != text)
        label->setToolTip(text);
    label->setAccessibleName(text);
    return label;
}

QString dateText(const CopyFileFacts& file, const CopyFileFacts& other)
{
    const QString date = QLocale().toString(file.modified.toLocalTime(), QLocale::ShortFormat);
    if (file.modified <= other.modified)
        return date;
    return ArgString(Translator::translate("CopyCollisionDialog", "%1 (newer)"))
        .arg(date)
        .toQString();
}

QString sizeText(const CopyFileFacts& file, const CopyFileFacts& other)
{
    const QString size = sizeForDisplay(file.size);
    if (file.size <= other.size)
        return size;
    return ArgString(Translator::translate("CopyCollisionDialog", "%1 (larger)"))
        .arg(size)
        .toQString();
}

QFrame* makePanel(const QString& title, const CopyFileFacts& file, const CopyFileFacts& other,
                  QWidget* parent)
{
    auto* panel = new QFrame(parent);
    panel->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(panel);
    QLabel* heading = makeLabel(title, panel);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    layout->addWidget(heading);
    layout->addWidget(makeElidedLabel(leafForDisplay(file.path), panel));
    layout->addWidget(makeElidedLabel(folderForDisplay(file.path), panel));
    layout->addWidget(makeLabel(sizeText(file, other), panel));
    QLabel* date = makeLabel(dateText(file, other), panel);
    if (file.modified > other.modified)
        date->setFont(bold);
    layout->addWidget(date);
    panel->setAccessibleName(title);
    panel->setAccessibleDescription(
        QStringLiteral("%1, %2, %3")
            .arg(leafForDisplay(file.path), sizeText(file, other), dateText(file, other)));
    return panel;
}

} // namespace

CopyCollisionDialog::CopyCollisionDialog(const CopyCollision& collision, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(Translator::translate("CopyCollisionDialog", "Name Already Taken"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);

    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    const QString leaf = leafForDisplay(collision.source.path);
    QLabel* text = makeLabel(ArgString(headline(collision.kind)).arg(leaf).toQString(), this);
    text->setWordWrap(true);
    layout->addWidget(text);
    layout->addWidget(makeFiles(collision));
    QLabel* keepBoth = makeLabel(
        ArgString(Translator::translate("CopyCollisionDialog", "Keep Both names the copy \"%1\"."))
            .arg(fontMetrics().elidedText(pathForDisplay(collision.keepBothName), Qt::ElideMiddle,
                                          s_panelTextWidth))
            .toQString(),
        this);
    keepBoth->setToolTip(pathForDisplay(collision.keepBothName));
    layout->addWidget(keepBoth);
    if (collision.remaining > 0) {
        m_forAll = new QCheckBox(forAllText(collision), this);
        layout->addWidget(m_forAll);
    }
    layout->addWidget(makeButtons(collision));
}

CopyAnswer CopyCollisionDialog::answer() const
{
    return {m_decision, m_forAll && m_forAll->isChecked()};
}

QPushButton* CopyCollisionDialog::button(CopyDecision decision) const
{
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->property("decision").toInt() == static_cast<int>(decision))
            return button;
    }
    return nullptr;
}

QWidget* CopyCollisionDialog::makeFiles(const CopyCollision& collision)
{
    // Two files are compared; a file with itself or with a folder is not.
    const bool comparable =
        collision.kind != CollisionKind::SameFile && collision.kind != CollisionKind::NotAFile;
    const CopyFileFacts& source = collision.source;
    const CopyFileFacts& target = collision.target;
    auto* files = new QWidget(this);
    auto* layout = new QHBoxLayout(files);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makePanel(Translator::translate("CopyCollisionDialog", "File to copy"),
                                source, comparable ? target : source, files),
                      1);
    layout->addWidget(
        makePanel(targetTitle(collision.kind), target, comparable ? source : target, files), 1);
    return files;
}

QWidget* CopyCollisionDialog::makeButtons(const CopyCollision& collision)
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    if (collision.allows(CopyDecision::Replace))
        layout->addWidget(makeButton(CopyDecision::Replace,
                                     Translator::translate("CopyCollisionDialog", "&Replace")));
    layout->addWidget(
        makeButton(CopyDecision::Skip, Translator::translate("CopyCollisionDialog", "&Skip")));
    QPushButton* keepBoth = makeButton(CopyDecision::KeepBoth,
                                       Translator::translate("CopyCollisionDialog", "Keep &Both"));
    layout->addWidget(keepBoth);
    layout->addWidget(
        makeButton(CopyDecision::Cancel, Translator::translate("CopyCollisionDialog", "&Cancel")));
    keepBoth->setDefault(true);
    keepBoth->setFocus();
    return row;
}

QPushButton* CopyCollisionDialog::makeButton(CopyDecision decision, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(true);
    button->setProperty("decision", static_cast<int>(decision));
    connect(button, &QPushButton::clicked, this, [this, decision] {
        m_decision = decision;
        done(decision == CopyDecision::Cancel ? Rejected : Accepted);
    });
    return button;
}

} // namespace Zorvane
