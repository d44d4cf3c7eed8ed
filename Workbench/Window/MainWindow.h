#pragma once

#include "Host/Widgets/BaseView.h"
#include "Workbench/Convert/MeshConverter.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Meshes/MeshLoader.h"
#include "Workbench/Tree/DesignTree.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QLabel;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DesignSaving;
class DetailsPanel;
class DialogPanel;
class DisplayToggles;
class EditHistory;
class FactsReader;
class FileCommands;
class FileExchange;
class FilterBar;
class HelpWindow;
class MeshPresenter;
class MeshView;
class MessageBar;
class ProblemsPanel;
class QuantityPanel;
class ReadingProgress;
class ReferenceMenu;
class SimulationRunner;
class StressWindow;
class WindowCommands;
class WindowLayout;

/**
 * The Workbench's window: the tree of what is open with its filters, the mesh and the details of
 * what is selected, and what is wrong. Owns the session that it shows.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /** Design folders, design files or mesh files, in addition to what is open. */
    void open(const QStringList& paths);
    /** Gives the tree, the mesh and the details their usual parts of the window. */
    void resizeAndDivide(const QSize& size);
    /** Reads everything again, once the user has agreed to drop unsaved changes. */
    void reload();
    /** Asks for files, and brings them into the selected design, else the first one. */
    void importFiles();
    /** Asks for a folder, and copies the files of what is selected to it. */
    void exportFiles();
    /** The window as it was left last; stores it again when it closes. */
    void keepLayout();

    // For those who drive the window without a person in front of it.
    DesignSession& session() { return m_session; }
    MeshLoader& loader() { return m_loader; }
    DesignTree& tree() { return *m_tree; }
    QTreeView& treeView() { return *m_treeView; }
    MeshView& meshView() { return *m_meshView; }
    FileCommands& fileCommands() { return *m_fileCommands; }
    DesignSaving& saving() { return *m_saving; }
    SimulationRunner& simulation() { return *m_runner; }
    EditHistory& history() { return *m_history; }
    WindowCommands& commands() { return *m_commands; }
    FileExchange& fileExchange() { return *m_exchange; }
    FilterBar& filterBar() { return *m_filterBar; }
    QuantityPanel& quantityPanel() { return *m_quantities; }
    const ProblemsPanel& problemsPanel() const { return *m_problemsPanel; }
    const MessageBar& messageBar() const { return *m_messageBar; }
    const ReadingProgress& readingProgress() const { return *m_progress; }
    QString countsText() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void layOut();
    void fillStatusBar();
    void connectActions();
    void connectFileActions();
    void connectParts();
    void connectFileCommands();
    void connectSaving();

    GUIdentifier currentDesign() const;
    GUIdentifier designAtHand() const;
    bool mayDropChanges(const GUIdentifier& designId = {});
    void saveDesignAtHand(bool (DesignSaving::*operation)(GUIdentifier));
    void reopenDesign();
    void closeAll();
    void rename();
    void removeCurrent();
    void goToReference();
    void goTo(const IDCombiner& id);
    void setQuantity(const GUIdentifier& object, Quantity quantity, double value);
    void notify(const QString& text);
    void hideMessages();
    /** One at a time; it is made when it is first wanted, or wanted again. */
    template <typename Window>
    void showBeside(QPointer<Window>& window);
    void about();

    void showCurrent();
    void showSession();
    void showProblems();
    void selectSomething();
    void tellConflict(const GUIdentifier& designId);

    DesignSession m_session;
    MeshLoader m_loader;
    DesignTree* m_tree;
    WindowCommands* m_commands;
    EditHistory* m_history;
    FactsReader* m_factsReader;
    BaseView* m_designView;
    FileCommands* m_fileCommands;
    SimulationRunner* m_runner;
    DesignSaving* m_saving;
    FileExchange* m_exchange;
    FilterBar* m_filterBar;
    QTreeView* m_treeView;
    MeshView* m_meshView;
    MeshPresenter* m_meshPresenter;
    DetailsPanel* m_details;
    QuantityPanel* m_quantities;
    ReferenceMenu* m_references;
    ProblemsPanel* m_problemsPanel;
    MessageBar* m_messageBar;
    ReadingProgress* m_progress;
    QLabel* m_counts;
    DisplayToggles* m_toggles;
    QPointer<HelpWindow> m_help;
    QPointer<StressWindow> m_stress;
    QPointer<DialogPanel> m_dialogPanel;
    MeshConverter m_converter{this};
    WindowLayout* m_layout = nullptr;
    bool m_keepsLayout = false;
    bool m_tellsRefusal = false;
};

} // namespace Zorvane::Workbench
