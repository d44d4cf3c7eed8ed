#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/FileSpellings.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace Zorvane::Workbench {

/**
 * Brings along what a design needs in another folder: the files that it refers to, the designs
 * among them, and their files in turn, each to the same place below the new folder. What leads out
 * of a design's folder stays where it is, and missing files don't count.
 *
 * A design behind a link stands where the link stands, with its files beside it. If it is also
 * referred to otherwise, it comes once, and what cannot reach it there is told.
 *
 * Shows progress and asks about names that are taken; where the user keeps both files, designs
 * refer to the copy. Designs that are open come along as they are shown, unsaved changes included,
 * under identifiers of their own, so that both can be open at once; others as their files are.
 * Nothing takes the place of the design itself, nor of a design that is open.
 */
class DesignRelocation
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignRelocation)

public:
    /**
     * From the folder of the design file `from` to that of `to`. `open` are the designs to be taken
     * as they are shown. The parent of questions may go while they are asked.
     */
    DesignRelocation(QWidget* parent, const QString& from, const QString& to,
                     std::vector<Design> open);

    /**
     * Brings what the design refers to, which is a copy of the one in `from` that is to be written
     * to `to`; does nothing if both are in one folder. None when all is in place, else why not:
     * what was brought until then stays.
     */
    std::optional<Problem> bringFilesOf(Design& design);

private:
    /** A file, and the folder that it goes to: by way of links, that may be several. */
    using Place = std::pair<QString, QString>;
    /** What a reference led to before the first question, as files come and go while it asks. */
    struct Coming
    {
        FileReference* reference;
        Place place;
        /** Null for what is no design or isn't open. */
        const Design* open;
    };

    std::vector<Coming> whatComesWith(Design& design, const QDir& from);
    Place placeOf(const QString& file, const QDir& from, const QDir& to);
    static std::optional<Problem> obstacleIn(const QString& folder, const QString& source,
                                             const QDir& design);
    const Design* openDesign(const FileReference& reference) const;
    std::optional<Problem> bring(Design& design, const QDir& from);
    std::optional<Problem> bringDesign(const Design& open);
    std::optional<Problem> referToCopies(const Design& design,
                                         const std::vector<Coming>& coming) const;
    std::optional<Problem> obstacleTo(const QString& folder, const QString& file) const;
    std::optional<Problem> copyFiles(const QString& folder, const QStringList& files,
                                     const QDir& design);

    QPointer<QWidget> m_parent;
    QDir m_from;
    QDir m_to;
    /** Of the design file there. */
    QString m_name;
    std::vector<Design> m_open;
    FileSpellings m_spellings;
    /** Where each file has got to. */
    std::map<Place, QString> m_copies;
    /** Where design files have got to; empty for those on their way, as they may form a circle. */
    std::map<QString, QString> m_designs;
};

} // namespace Zorvane::Workbench
