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

using Settings = ZVMainActionSettings;

QIcon createIcon(const ZVMainActionRow::Icon& icon)
{
    switch (icon.kind) {
    case ZVMainActionRow::Icon::Svg:
        return createSvgIcon(icon.path.toString());
    case ZVMainActionRow::Icon::TwoSizeSvg:
        return createTwoSizeSvgIcon(icon.path.toString());
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
    if (shortcut.key != 0 && text == QLatin1String(shortcut.keys))
        return QKeySequence(shortcut.key);
    return QKeySequence(text, QKeySequence::NativeText);
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
    if (settings.has(Settings::WindowContext))
        action->setShortcutContext(Qt::WindowShortcut);
    if (settings.has(Settings::IconTextIsText))
        action->setIconText(action->text());
    if (settings.has(Settings::Checkable))
        action->setCheckable(true);
    if (settings.has(Settings::Checked))
        action->setChecked(true);
    if (settings.has(Settings::Unchecked))
        action->setChecked(false);
    if (settings.has(Settings::Disabled))
        action->setEnabled(false);
    if (settings.has(Settings::Enabled))
        action->setEnabled(true);
    // Set as it is: it has no shortcut to tell of.
    if (settings.has(Settings::MayNeedStandards) && isExportRestricted())
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
    ActionsById created{};
    for (int i = 0; i < s_rowCount; ++i) {
        const ZVMainActionRow& row = s_rows[i];
        const QString text = textOf(row);
        QAction* const action =
            createAction(text, createIcon(row.icon), toolTipOf(row, text), shortcutOf(row.shortcut),
                         this, row.objectName.toString());
        if (row.id >= 0)
            created[std::size_t(row.id)] = action;
        applySettings(row.settings, action);
        addToGroup(row.settings, action);
    }
    enter(created);
}

void ZVMainActions::enter(const ActionsById& created)
{
    // From the last to the first, each is put in front of the others without a search.
    for (std::size_t id = created.size(); id-- > 0;)
        if (created[id])
            m_actions.insert(m_actions.cbegin(), int(id), created[id]);
}

void ZVMainActions::addToGroup(const ZVMainActionSettings& settings, QAction* action)
{
    if (settings.has(Settings::InWindowGroup)) {
        if (!m_windowLayouts) {
            m_windowLayouts = new QActionGroup(this);
            m_windowLayouts->setObjectName(QStringLiteral("WindowGroup"));
        }
        m_windowLayouts->addAction(action);
    }
    const auto addTo = [&](ZVExclusiveActionGroup*& group) {
        if (!group)
            group = new ZVExclusiveActionGroup(this);
        group->addAction(action, settings.value);
    };
    if (settings.has(Settings::OfCoordinates))
        addTo(m_coordinateSystems);
    if (settings.has(Settings::OfStations))
        addTo(m_stationVisibilities);
}

} // namespace Zorvane
