#pragma once

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/FileDialogDriver.h"
#include "FileDialogs/FileDialogEventHandler.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <functional>
#include <vector>

namespace Zorvane::Testing {

inline FileDialogRequest forSaving(FileDialogRequest request)
{
    request.purpose = FileDialogPurpose::SaveFile;
    return request;
}

/** A folder with some files, and a request for a dialog that shows it. */
class DialogFolder
{
public:
    DialogFolder()
    {
        for (const char* name : {"a.stl", "b.stl", "c d.obj", "notes.txt"})
            addFile(name);
    }

    QString folder() const { return QDir::toNativeSeparators(m_root.path()); }
    QString path(const char* below) const
    {
        return QDir::toNativeSeparators(m_root.filePath(QString::fromUtf8(below)));
    }
    QString addFile(const char* name) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write("content") != 7)
            qFatal("cannot write a test file");
        return path(name);
    }

    FileDialogRequest request() const
    {
        FileDialogRequest request;
        request.caption = QStringLiteral("Choose a Part");
        request.filter = QStringLiteral("Meshes (*.stl *.obj);;All Files (*.*)");
        request.start = folder();
        return request;
    }

private:
    QTemporaryDir m_root;
};

/** Writes down what it is told, and does what the test wants done about it. */
class EventRecorder : public FileDialogEventHandler
{
public:
    using Reaction = std::function<void(const FileDialogCallbackInterface&)>;

    void onSelectionChanged(const QStringList& files,
                            const FileDialogCallbackInterface& callbacks) override
    {
        QStringList names;
        for (const QString& file : files)
            names.append(QFileInfo(file).fileName());
        selections.push_back(files);
        note(QStringLiteral("selected ") + names.join(QLatin1Char('|')), callbacks);
    }
    void onCheckBoxToggled(bool checked, int controlId,
                           const FileDialogCallbackInterface& callbacks) override
    {
        note(QStringLiteral("check box %1 %2")
                 .arg(controlId)
                 .arg(checked ? QStringLiteral("on") : QStringLiteral("off")),
             callbacks);
    }
    void onItemSelected(int controlId, int itemIndex) override
    {
        events.append(QStringLiteral("item %1 of %2").arg(itemIndex).arg(controlId));
    }
    void onTypeChanged(const FileDialogCallbackInterface& callbacks) override
    {
        note(QStringLiteral("type"), callbacks);
    }

    /** In order, each as often as it is told. */
    QStringList events;
    std::vector<QStringList> selections;
    /** Done at each event that gives access to the dialog. */
    Reaction reaction;

private:
    void note(const QString& event, const FileDialogCallbackInterface& callbacks)
    {
        events.append(event);
        // A copy, since a reaction may end itself.
        if (const Reaction current = reaction)
            current(callbacks);
    }
};

/** The same selection several times in a row, as some systems tell it, counts as once. */
inline QStringList withoutRepeatedSelections(const QStringList& events)
{
    QStringList once;
    for (const QString& event : events) {
        if (once.isEmpty() || once.last() != event || !event.startsWith(QLatin1String("selected")))
            once.append(event);
    }
    return once;
}

/** Keeps the rectangles that it is given, besides storing them; does what the test wants, too. */
class GeometryRecorder : public FileDialogConfiguration
{
public:
    using FileDialogConfiguration::FileDialogConfiguration;

    void storeFileDialogGeometry(const QRect& rect) override
    {
        stored.push_back(rect);
        if (onStore)
            onStore();
        FileDialogConfiguration::storeFileDialogGeometry(rect);
    }

    QSize getTopLeftOffset() override
    {
        if (onPlace)
            onPlace();
        return FileDialogConfiguration::getTopLeftOffset();
    }

    std::vector<QRect> stored;
    std::function<void()> onStore;
    std::function<void()> onPlace;
};

} // namespace Zorvane::Testing
