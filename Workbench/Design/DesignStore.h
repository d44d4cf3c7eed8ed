#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Design/DesignEdit.h"
#include "Workbench/Design/DesignReader.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace Zorvane::Workbench {

/**
 * The open designs and how each stands to its file: what was read, what is wrong with it, what was
 * changed here. A design whose file cannot be read any more stays as it was read last.
 */
class DesignStore
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignStore)

public:
    /** What another program's change of a file led to. */
    enum class Outcome
    {
        Nothing,
        Changed,
        Conflict
    };

    /** Designs may refer to designs as deep as this, against chains without end. */
    static constexpr int deepestReference = 100;

    /**
     * Opens the design file at an absolute path, and those that it refers to. Where the case of
     * letters doesn't count, a file stays known by the spelling that came first.
     */
    void add(const QString& file);
    /** Opens the file in place of the design, whose unsaved changes are dropped. */
    void replace(GUIdentifier designId, const QString& file);
    /** Whether no other design refers to it: one that is referred to stays open. */
    bool canClose(const GUIdentifier& designId) const;
    /** Forgets a design that can be closed, its unsaved changes too. */
    void close(GUIdentifier designId);
    void clear();

    const std::vector<Design>& designs() const { return m_designs; }
    Problems problems() const;
    const Design* find(const GUIdentifier& objectId) const;
    /** Of the design read from the file; null if none is. */
    GUIdentifier idOf(const QString& file) const;
    /** Which reading each design shows: another number whenever its file was read again. */
    using Readings = std::map<GUIdentifier, int>;
    Readings readings() const;
    /** Every file that a design is or wants to be read from. */
    QStringList designFiles() const;

    /** Reads the design's file again if it holds something new and nothing unsaved would go. */
    Outcome follow(const QString& file);
    /** Looks for all files referred to; true if anything is different. */
    bool refreshStates();

    /** The object must belong to a design. True if that changes the name. */
    bool rename(GUIdentifier objectId, const QString& name);
    /** The object must have the value. True if that changes it. */
    bool setQuantity(GUIdentifier objectId, Quantity quantity, double value);
    /** Adds what the design, which must be open, doesn't refer to yet; returns what is new. */
    TakenObjects addFiles(GUIdentifier designId, const QStringList& files);
    /** Whether the design is open and has all of these as they are here. */
    bool holds(const TakenObjects& objects) const;
    /** Takes those of the objects out of the design that are parts or references to files. */
    TakenObjects take(GUIdentifier designId, const std::vector<GUIdentifier>& objects);
    /** Puts them back where they were; false if the design isn't open, or any is there already. */
    bool putBack(const TakenObjects& taken);
    bool isModified() const;
    bool isModified(const GUIdentifier& objectId) const;
    bool isDesignModified(const GUIdentifier& designId) const;
    /** Whether a value is another one than in the file. */
    bool areQuantitiesModified(const GUIdentifier& designId) const;
    bool hasConflict(const GUIdentifier& designId) const;
    /** Writes the design, or every modified one for the null id. */
    Problems save(GUIdentifier designId, bool overwriteConflicts);
    /** Drops what was changed here, if the file can be read; else tells why not by a problem. */
    void revert(GUIdentifier designId);
    /** Reads the design files again from which no design could be read. */
    void retryUnread();

private:
    using Names = std::map<GUIdentifier, QString>;
    using Quantities = std::map<std::pair<GUIdentifier, Quantity>, double>;

    /** How a design stands to its file. */
    struct Record
    {
        /** What the design was read from or saved as. */
        QByteArray content;
        /** Found when the design was read. */
        Problems pieces;
        /** Why the file at present is not what is shown. */
        Problems file;
        bool conflict = false;
        /** Counts over all designs; saving leaves it. */
        int reading = 0;
        /** Names as in the file, of the objects that have another one now. */
        Names savedNames;
        /** Values as in the file, of the objects that have another one now. */
        Quantities savedQuantities;
        /** Objects that the file doesn't have yet. */
        std::set<GUIdentifier> added;
        /** Objects that only the file has. */
        std::set<GUIdentifier> removed;
        /** Those that were added and taken out again would have, once they are put back. */
        Names namesOfTaken;
        Quantities quantitiesOfTaken;

        bool isModified() const
        {
            return !savedNames.empty() || !savedQuantities.empty() || !added.empty() ||
                   !removed.empty();
        }
        bool isModified(const GUIdentifier& objectId) const;
        void noteTaken(const GUIdentifier& objectId);
        void notePutBack(const GUIdentifier& objectId);
    };
    using Pool = std::map<QString, Design>;

    QString knownSpelling(const QString& file) const;
    void forget(const QString& file);
    void arrange();
    void placeOpened(const QString& file, Pool& pool);
    void place(const QString& file, QStringList& path, Pool& pool);
    void followReference(std::size_t index, std::size_t reference, QStringList& path, Pool& pool);
    void readNew(const QString& file, Pool& pool);
    DesignReader::TakenIds takenIds(const QString& exceptFile, const Pool& pool) const;
    static void noteConflict(Record& record, const QString& file);
    bool accept(Record& record, Design& design, DesignReading reading);
    std::optional<Problem> saveOne(Design& design, Record& record, bool overwriteConflict);
    void noteSaved(Design& design, Record& record);
    Design* findByFile(const QString& file);
    const Record* recordOf(const GUIdentifier& objectId) const;

    QStringList m_opened;
    int m_lastReading = 0;
    std::vector<Design> m_designs;
    std::map<QString, Record> m_records;
    /** What is wrong with the way designs refer to one another. */
    Problems m_references;
    QSet<QString> m_referred;
};

} // namespace Zorvane::Workbench
