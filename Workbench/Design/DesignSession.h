#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/DesignEdit.h"
#include "Workbench/Design/DesignStore.h"
#include "Workbench/Design/FileWatch.h"
#include "Workbench/Design/LooseParts.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace Zorvane::Workbench {

/**
 * Everything that the Workbench has open: designs, the designs they refer to, and mesh files opened
 * by themselves. Watches all of it and follows what other programs change: a design that is not
 * modified is read again, a modified one is kept and reported as a conflict. What cannot be read
 * leaves the last good state and a problem.
 *
 * Lives in one thread with an event loop. References and pointers into designs are valid until the
 * next `changed`.
 *
 * Edits are `rename`, `setQuantity`, `addFiles` and `take`. `replay`, `takeAgain` and `putBack`
 * undo them and make them again, by the `DesignEdit` that tells of each.
 * Not supported: removing and adding any but files and their parts.
 */
class DesignSession : public QObject
{
    Q_OBJECT

public:
    /** What to do on saving with a design file that another program changed meanwhile. */
    enum class OnConflict
    {
        Refuse,
        Overwrite
    };

    explicit DesignSession(QObject* parent = nullptr);

    /**
     * Opens design files, mesh files (STL, OBJ, PLY), and folders: all design files in a folder,
     * else its mesh files. What is open stays open; what is open already isn't opened twice. A path
     * that cannot be opened gives a problem and doesn't keep the others from opening.
     */
    void open(const QStringList& paths);
    /** Forgets everything, unsaved changes too. */
    void close();
    /**
     * Whether the design can be closed by itself: no other one refers to it. Designs that refer to
     * one another in a circle can only be closed with everything else.
     */
    bool canClose(const GUIdentifier& designId) const;
    /**
     * Forgets one design, its unsaved changes too, and designs that only it refers to, unless they
     * have unsaved changes. Does nothing if it cannot be closed.
     */
    void close(GUIdentifier designId);
    /** Opens the design file in place of the design, whose unsaved changes are dropped. */
    void replace(GUIdentifier designId, const QString& file);

    /** Those opened, each followed by the designs that it refers to; each design once. */
    const std::vector<Design>& designs() const { return m_store.designs(); }
    /** Mesh files opened by themselves, in the order opened, those of a folder by name. */
    const std::vector<Part>& looseParts() const { return m_looseParts.parts(); }
    /** All that is wrong at present. */
    Problems problems() const;

    /** The design with this object, or with this id itself; null if none. */
    const Design* findDesign(const GUIdentifier& objectId) const;
    /** The design that is open from this file, however its path is written; null if none is. */
    const Design* findByFile(const QString& path) const;
    /** Of any design, object of a design or loose part; empty if none has the id. */
    QString name(const GUIdentifier& objectId) const;
    /**
     * The mesh file to show for a part, tool, blank or file; empty if it has none. The file may be
     * missing, which `geometryState` tells.
     */
    QString geometryFile(const GUIdentifier& objectId) const;
    /** Missing as well if the object has no mesh file. */
    FileState geometryState(const GUIdentifier& objectId) const;
    /** Every mesh file that exists, each once, in the order of designs and parts. */
    QStringList meshFiles() const;

    /** Loose parts are named by their files and cannot be renamed. */
    bool canRename(const GUIdentifier& objectId) const;
    /**
     * Gives the object a name, trimmed. Returns why not, translated, when the name is empty, longer
     * than 255 characters or holds control characters, or the object cannot be renamed; nothing has
     * changed then. Empty when done. The same name again changes nothing.
     */
    QString rename(GUIdentifier objectId, const QString& name);

    /** `noValue` if the object has none now, nothing if it never has such a value. */
    std::optional<double> quantity(const GUIdentifier& objectId, Quantity quantity) const;
    /**
     * Gives an object the value, or takes it away with `noValue`. Returns why not, translated, when
     * the value is no quantity, or the object never has such a value; nothing has changed then.
     * Empty when done. The same value again changes nothing, and the value as it was read or saved
     * takes the object's modification back.
     */
    QString setQuantity(GUIdentifier objectId, Quantity quantity, double value);

    /**
     * Has a design refer to files in its folder, kinds told by their endings; a mesh file becomes a
     * part as well. Files that the design refers to already are not added again. If any file
     * cannot be added nothing changes, and the result tells why; it is empty when all went well.
     */
    Problems addFiles(GUIdentifier designId, const QStringList& files);
    /**
     * The first part of the design that shows the file, else its reference to the file; null if it
     * doesn't refer to it.
     */
    GUIdentifier findObject(const GUIdentifier& designId, const QString& file) const;

    /**
     * Takes parts and references to files out of the design of the id; files stay where they are.
     * What other objects refer to is left without. Ids of anything else are passed over.
     */
    TakenObjects take(GUIdentifier designId, const std::vector<GUIdentifier>& objects);
    /** Whether the object is a part, or a reference to a file that nothing else wants. */
    bool canTake(const GUIdentifier& objectId) const;
    /**
     * Puts them back where they were; false, and nothing done, if the design isn't open, or any of
     * them is there already.
     */
    bool putBack(const TakenObjects& taken);
    /** Takes them out; false, and nothing done, if any isn't there or not as it is here. */
    bool takeAgain(const TakenObjects& objects);
    /**
     * Makes the change exactly as it was made once, by whatever rules; false, and nothing done, if
     * the present value is another one than before it.
     */
    bool replay(const NameEdit& edit);
    bool replay(const QuantityEdit& edit);

    bool isModified() const { return m_store.isModified(); }
    /** Whether the object itself, not what it contains, was changed since it was read or saved. */
    bool isModified(const GUIdentifier& objectId) const;
    /** Whether the design or anything of it was changed, added or taken out since. */
    bool isDesignModified(const GUIdentifier& designId) const;
    /** Whether a thickness or force in the design was changed since. */
    bool areQuantitiesModified(const GUIdentifier& designId) const;
    /** Whether the design was modified here and its file by another program. */
    bool hasConflict(const GUIdentifier& designId) const;

    /**
     * Writes every modified design. What could not be written, or must not because of a conflict,
     * stays modified and is told in the result, which is empty when all went well.
     */
    Problems save(OnConflict onConflict = OnConflict::Refuse);
    /** Writes one design, modified or not. */
    Problems save(GUIdentifier designId, OnConflict onConflict);
    /** Reads the design's file again and drops the unsaved changes of that design. */
    void revert(GUIdentifier designId);

    /** Reverts every design, and tries again to open what could not be opened. */
    void reload();

Q_SIGNALS:
    /** A person's change of a design, after it was made and before `changed`. */
    void edited(const Zorvane::Workbench::DesignEdit& edit);
    /** These were read from their files again, or closed; earlier edits don't fit any more. */
    void reread(const std::vector<Zorvane::GUIdentifier>& designs);
    /** Something of designs, parts, states of files, problems or modification is different. */
    void changed();
    /** The content of a file that is referred to or opened may be different. */
    void fileChanged(const QString& path);
    /** Another program changed the file of a design with unsaved changes; ours are kept. */
    void conflictFound(const Zorvane::GUIdentifier& designId);

private:
    void openOne(const QString& path);
    void openFolder(const QString& folder);
    void openFile(const QString& file);
    void tellEdited(const DesignEdit& edit, const GUIdentifier& objectId);
    void tellReread(const DesignStore::Readings& before);
    void watch();
    void follow(const QStringList& files);
    const Part* findLoosePart(const GUIdentifier& id) const;

    DesignStore m_store;
    LooseParts m_looseParts;
    /** Paths that could not be opened. */
    Problems m_openProblems;
    FileWatch m_watch;
};

} // namespace Zorvane::Workbench
