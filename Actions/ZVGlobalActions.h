#pragma once

#include "Actions/GenericMainActions.h"

namespace Zorvane {

/**
 * The commands that every window of the suite shares: help, and two that are reached by keyboard
 * only. The application connects them and installs them on its windows with
 * `registerApplicationActions`.
 */
class ZORVANE_UITOOLS_EXPORT ZVGlobalActions : public GenericMainActions
{
    Q_OBJECT

public:
    enum Actions
    {
        HelpContents,
        HelpContentsDebug,
        CustomerTicketSystem
    };
    Q_ENUM(Actions)

    /** The one table, made on the first call and destroyed when the process ends. */
    static ZVGlobalActions* instance();

protected:
    explicit ZVGlobalActions(QObject* parent);
    ~ZVGlobalActions() override;

    virtual void initActions();
    void initDebugActions();
};

} // namespace Zorvane
