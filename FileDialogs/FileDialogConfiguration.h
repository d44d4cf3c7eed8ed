#pragma once

#include "UiToolsExport.h"

#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <cstdint>

namespace Zorvane {

class FileDialogEventHandler;

/**
 * What a dialog gets beyond the plain one: where its window goes and how big it is, kept in the
 * application's settings by a key; controls of the caller's own; and a handler that is notified of
 * what the user does. Give it to the open functions of `FileDialog`, or to `FileDialog::ask`; it
 * must live until they return, and nothing in it changes meanwhile except through the geometry
 * calls.
 *
 * Rectangles are outer ones (with the window's frame), in Qt's pixels (`QScreen::geometry`), also
 * where Qt scales screens and the system's dialogs count the screens' own pixels. One exception:
 * what the system's dialog stores when it was moved is one pixel wider and higher than the window,
 * which is taken off again when such a dialog is placed.
 * Not supported: controls in folder dialogs, and in save dialogs of the system.
 */
class ZORVANE_UITOOLS_EXPORT FileDialogConfiguration
{
public:
    enum ControlType : std::int32_t
    {
        CheckBox = 0,
        ComboBox = 1
    };

    /** Flags of a control. */
    enum ControlState : std::int32_t
    {
        ControlEnabled = 1,
        ControlVisible = 2,
        ControlEnabledVisible = 3
    };

    /** Each control is a group as well, which this number plus the control's index names. */
    static constexpr std::int32_t s_firstGroupId = 201;

    /** One control below the file list. */
    struct CustomItem
    {
        /** Names the control in events; should be used once, and not be a group's number. */
        std::int32_t controlId = 0;
        /** A `ControlType`; any other value adds no control. */
        std::int32_t controlType = CheckBox;
        /** Beside the dialog's buttons. */
        bool prominent = false;
        /** `ControlState` flags. */
        std::int32_t controlState = ControlEnabledVisible;
        /** When not empty, the control gets this label, as a group of its own. */
        QString groupLabel;
        /** A check box's label, or a combo box's list of item texts. */
        QVariant content;
        /** Whether a check box is checked, or the index of a combo box's selected item. */
        QVariant initialValue;
    };

    static const QString s_defaultSettingsKey;

    explicit FileDialogConfiguration(const QString& settingsKey = s_defaultSettingsKey);
    FileDialogConfiguration(const FileDialogConfiguration& other);
    FileDialogConfiguration& operator=(const FileDialogConfiguration& other);
    virtual ~FileDialogConfiguration();

    /** Not owned; null for none. */
    virtual void setEventHandler(FileDialogEventHandler* eventHandler);
    /**
     * Where the dialog's corner goes when no geometry is stored: the offset from the corner of the
     * screen that holds the main window (the application's property "MainWindow"). Invalid where
     * there is no desktop.
     */
    virtual QSize getTopLeftOffset();
    /** The stored rectangle; false, with `rect` as it was, unless both corners are stored. */
    virtual bool getFileDialogGeometry(QRect& rect);
    virtual void storeFileDialogGeometry(const QRect& rect);
    /**
     * Notes the size of the window whose rectangle was stored one pixel wider and higher, as the
     * system's dialog does. A later `placedSize` of that rectangle's size is the window's again.
     */
    void storeWindowSize(const QSize& size);
    /** The size to give a window whose rectangle, or one side of it, was stored. */
    QSize placedSize(const QSize& stored) const;
    /** Where the corner of a window beside the dialog goes; (-1, -1) stands for nowhere. */
    virtual QPoint getPositionForPreviewer();
    /** Notes the rectangle for the life of one dialog; here it is forgotten at once. */
    virtual void storeTemporaryFileDialogGeometry(const QRect& rect);

    FileDialogEventHandler* getEventHandler() const;

    /** Adds a control behind those there are. Before the dialog is shown. */
    void addCustomControl(const CustomItem& control);
    int numberOfcustomControls() const;
    /** The index must be one of the list. */
    const CustomItem& getCustomControl(int index) const;
    /** The first control of the identifier; null if there is none. */
    const CustomItem* findCustomControl(int controlId) const;
    /** Of the first control of the identifier; an unknown one changes nothing. */
    void setInitialValue(int controlId, const QVariant& value);

    void setDefaultDialogSize(const QSize& size);
    /** As high as the handler's previewer, where that has a valid rectangle. */
    QSize getDefaultDialogSize() const;
    /** Width is the distance to the right, height that downwards. */
    void setTopLeftOffset(const QSize& offset);
    /** What the dialog needs; set by a dialog that knows it, for layouts beside it. At first 0. */
    void setMinimumDialogWidth(int width);
    int minimumDialogWidth() const;

private:
    QSize m_defaultDialogSize;
    QSize m_topLeftOffset;
    int m_minimumDialogWidth = 0;
    QList<CustomItem> m_customControls;
    FileDialogEventHandler* m_eventHandler = nullptr;
    QString m_settingsKey;
};

} // namespace Zorvane
