#include "Actions/ZVMainActions.h"

#include "Actions/ZVMainActionRow.h"
#include "Host/ApplicationWidgets/SvgIcon.h"
#include "Host/BuildInformation/BuildInformation.h"
#include "Host/Configuration/VanTrelConfiguration.h"
#include "Host/Resources/IconPathProvider.h"
#include "Host/Widgets/ZVExclusiveActionGroup.h"
#include "Host/Widgets/ZVFormatter.h"

#include <QtGui/QIcon>
#include <QtWidgets/QAction>
#include <QtWidgets/QActionGroup>

namespace Zorvane {

namespace {

using Group = ZVMainActionRow::Group;
using Settings = ZVMainActionRow::Settings;

QIcon createIcon(const ZVMainActionRow::Icon& icon)
{
    switch (icon.kind) {
    case ZVMainActionRow::Icon::Svg:
        return createSvgIcon(QString::fromLatin1(icon.path));
    case ZVMainActionRow::Icon::TwoSizeSvg:
        return createTwoSizeSvgIcon(QString::fromLatin1(icon.path));
    case ZVMainActionRow::Icon::Overview:
        return createSvgIcon(Resources::getIconPathProvider()->getOverviewIconPath());
    case ZVMainActionRow::Icon::ProductCoordinates:
        return createTwoSizeSvgIcon(
            Resources::getIconPathProvider()->getProductCoordinatesIconPath());
    case ZVMainActionRow::Icon::None:
        break;
    }
    return {};
}

QKeySequence translatedKeys(const ZVMainActionRow::Shortcut& shortcut)
{
    const QString text = ZVMainActions::tr(shortcut.keys);
    if (text != QLatin1String(shortcut.keys))
        return QKeySequence(text, QKeySequence::NativeText);
    // Source texts are portable; Qt would look for native names in them for much longer.
    return shortcut.key == 0 ? QKeySequence(text, QKeySequence::PortableText)
                             : QKeySequence(shortcut.key);
}

QKeySequence shortcutOf(const ZVMainActionRow::Shortcut& shortcut)
{
    switch (shortcut.kind) {
    case ZVMainActionRow::Shortcut::Standard:
        return QKeySequence(QKeySequence::StandardKey(shortcut.key));
    case ZVMainActionRow::Shortcut::TranslatedKeys:
        return translatedKeys(shortcut);
    case ZVMainActionRow::Shortcut::KeyCode:
        return QKeySequence(shortcut.key);
    case ZVMainActionRow::Shortcut::None:
        break;
    }
    return {};
}

/** The angle stands where the text asks for it; a tool tip may not. */
QString translated(const char* source, int degrees)
{
    if (degrees == 0)
        return ZVMainActions::tr(source);
    const QString text = ZVMainActions::tr(source);
    if (!text.contains(QLatin1String("%1")))
        return text;
    return text.arg(ZVFormatter::toString(degrees, "degree", true), 0, QLatin1Char(' '));
}

QString textOf(const ZVMainActionRow& row)
{
    const Settings& settings = row.settings;
    const bool isPitched = settings.pitchedText && BuildInformation::getProductType() ==
                                                       BuildInformation::s_pitchedStations;
    return translated(isPitched ? settings.pitchedText : row.text, settings.degrees);
}

QString toolTipOf(const ZVMainActionRow& row, const QString& text)
{
    if (row.toolTip == ZVMainActionRow::s_sameAsText)
        return text;
    return *row.toolTip == '\0' ? QString() : translated(row.toolTip, row.settings.degrees);
}

bool isExportRestricted()
{
    const auto exchange = VanTrelConfiguration::getRegisteredInstance();
    return exchange && exchange->getDisableExportWithoutStandard();
}

void applySettings(const Settings& settings, QAction* action)
{
    action->setCheckable(settings.isCheckable);
    action->setChecked(settings.isChecked);
    action->setDisabled(settings.isDisabled);
    if (settings.hasTextAsIconText)
        action->setIconText(action->text());
    // Set as it is: it has no shortcut to be shown with it.
    if (settings.mayNeedStandards && isExportRestricted())
        action->setToolTip(
            ZVMainActions::tr("The export of the complete VanTrel Data is disabled. Select a "
                              "VanTrel Export Standards are required."));
}

} // namespace

ZVMainActions::ZVMainActions()
    : GenericMainActions(nullptr)
{
    initActions();
}

ZVMainActions::~ZVMainActions() = default;

ZVMainActions*& ZVMainActions::theInstancePtr()
{
    static ZVMainActions* s_instance = nullptr;
    return s_instance;
}

void ZVMainActions::createInstance()
{
    if (!theInstancePtr())
        theInstancePtr() = new ZVMainActions; // deleted by releaseInstance
}

ZVMainActions* ZVMainActions::getInstance()
{
    return theInstancePtr();
}

void ZVMainActions::releaseInstance()
{
    delete theInstancePtr();
    theInstancePtr() = nullptr;
}

bool ZVMainActions::enabledState(Actions id)
{
    const QAction* const found = theInstancePtr()->m_actions.value(id);
    return found && found->isEnabled();
}

bool ZVMainActions::isEnabled(Actions id)
{
    return enabledState(id);
}

bool ZVMainActions::isDisabled(Actions id)
{
    return !enabledState(id);
}

void ZVMainActions::disableActions(const std::vector<Actions>& ids)
{
    for (const Actions id : ids)
        if (QAction* const found = m_actions.value(id))
            found->setEnabled(false);
}

ZVExclusiveActionGroup* ZVMainActions::getViewReferenceCoordSysGroup()
{
    return m_coordinateSystems;
}

ZVExclusiveActionGroup* ZVMainActions::getViewReferenceStationVisibilityGroup()
{
    return m_stationVisibilities;
}

void ZVMainActions::initActions()
{
    mapReverse();
    for (int i = 0; i < s_rowCount; ++i) {
        const ZVMainActionRow& row = s_rows[i];
        const QString text = textOf(row);
        QAction* const action =
            createAction(text, createIcon(row.icon), toolTipOf(row, text), shortcutOf(row.shortcut),
                         this, QString::fromLatin1(row.objectName));
        if (row.id >= 0)
            m_actions[row.id] = action;
        applySettings(row.settings, action);
        addToGroup(row, action);
    }
}

void ZVMainActions::addToGroup(const ZVMainActionRow& row, QAction* action)
{
    const auto addTo = [&](QPointer<ZVExclusiveActionGroup>& group) {
        if (!group)
            group = new ZVExclusiveActionGroup(this);
        group->addAction(action, row.settings.value);
    };
    switch (row.settings.group) {
    case Group::WindowLayouts:
        if (!m_windowLayouts) {
            m_windowLayouts = new QActionGroup(this);
            m_windowLayouts->setObjectName(QStringLiteral("WindowGroup"));
        }
        m_windowLayouts->addAction(action);
        break;
    case Group::CoordinateSystems:
        addTo(m_coordinateSystems);
        break;
    case Group::StationVisibilities:
        addTo(m_stationVisibilities);
        break;
    case Group::None:
        break;
    }
}

} // namespace Zorvane
