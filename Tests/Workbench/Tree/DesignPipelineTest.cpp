#include "Workbench/Tree/DesignPipeline.h"

#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "TreeModel/ModelItem.h"
#include "Workbench/Tree/DesignCatalog.h"
#include "Workbench/Tree/KindFilter.h"
#include "Workbench/Tree/NameFilter.h"

namespace Zorvane::Workbench {

using GenericTreeViewModelHandling::ModelItem;
using GenericTreeViewModelHandling::ModelRoot;
using Testing::objectId;

namespace {

void addLines(const std::vector<std::shared_ptr<ModelItem>>& items, const QString& indent,
              QStringList& lines)
{
    for (const std::shared_ptr<ModelItem>& item : items) {
        lines << indent + QString::fromStdString(item->getName());
        addLines(item->getChildren(), indent + QStringLiteral("  "), lines);
    }
}

/** One line a row, indented by level. */
QString outline(const ModelRoot& root)
{
    QStringList lines;
    addLines(root.getTopLevelItems(), {}, lines);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class DesignPipelineTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsListsBelowTheirCounts();
    void meshFilesStandBehindDesigns();
    void filteredRowsKeepWhatHoldsThem();
    void anOperationMayShowWithoutItsTools();
    void aDesignStaysWhenNothingInItPasses();
    void aRenamedDesignAndANewOneAreFollowed();
    void idsOfGroupsStayTheSame();
    void countsWhatIsShown();
    void tellsNamesOfGroups();
    void tellsChangesOfSessionAndFilter();
    void nothingOpenIsAnEmptyModel();

private:
    QString shown() { return outline(*m_pipeline->provideModel()); }

    std::unique_ptr<Testing::OpenedDesign> m_opened;
    std::unique_ptr<DesignCatalog> m_catalog;
    std::shared_ptr<NameFilter> m_filter;
    std::unique_ptr<DesignPipeline> m_pipeline;
    int m_changes = 0;
};

void DesignPipelineTest::init()
{
    m_opened = std::make_unique<Testing::OpenedDesign>();
    m_catalog = std::make_unique<DesignCatalog>(m_opened->session, m_opened->loader);
    m_filter = std::make_shared<NameFilter>(*m_catalog);
    m_changes = 0;
    m_pipeline =
        std::make_unique<DesignPipeline>(m_opened->session, m_filter, [this] { ++m_changes; });
}

void DesignPipelineTest::cleanup()
{
    m_pipeline.reset();
    m_filter.reset();
    m_catalog.reset();
    m_opened.reset();
    TestCase::cleanup();
}

void DesignPipelineTest::showsListsBelowTheirCounts()
{
    QCOMPARE(shown(), QStringLiteral("Small\n"
                                     "  Parts (2)\n"
                                     "    Blank\n"
                                     "    Cup\n"
                                     "  Operations (1)\n"
                                     "    Draw\n"
                                     "      Die\n"
                                     "      Punch\n"
                                     "  Materials (1)\n"
                                     "    Steel\n"
                                     "  Files (2)\n"
                                     "    Die mesh\n"
                                     "    Card"));
}

void DesignPipelineTest::meshFilesStandBehindDesigns()
{
    for (const char* name : {"a.stl", "b.stl"})
        Testing::writeFile(m_opened->path(QStringLiteral("many/") + QLatin1String(name)),
                           Testing::binaryStl(Testing::cube()));
    m_opened->session.open({m_opened->path(QStringLiteral("many"))});
    QVERIFY(shown().endsWith(QStringLiteral("\nMesh files (2)\n  a.stl\n  b.stl")));
}

void DesignPipelineTest::filteredRowsKeepWhatHoldsThem()
{
    m_filter->setText(QStringLiteral("die"));
    QCOMPARE(shown(), QStringLiteral("Small\n"
                                     "  Parts (2)\n"
                                     "    Blank\n"
                                     "    Cup\n"
                                     "  Operations (1)\n"
                                     "    Draw\n"
                                     "      Die\n"
                                     "  Files (1)\n"
                                     "    Die mesh"));
}

void DesignPipelineTest::anOperationMayShowWithoutItsTools()
{
    m_filter->setText(QStringLiteral("draw"));
    QCOMPARE(shown(), QStringLiteral("Small\n"
                                     "  Operations (1)\n"
                                     "    Draw"));
}

void DesignPipelineTest::aDesignStaysWhenNothingInItPasses()
{
    m_filter->setText(QStringLiteral("no such thing"));
    QCOMPARE(shown(), QStringLiteral("Small"));
    QCOMPARE(m_pipeline->shownCount(), 0);
}

void DesignPipelineTest::aRenamedDesignAndANewOneAreFollowed()
{
    QCOMPARE(m_opened->session.rename(objectId(1), QStringLiteral("Tiny")), QString());
    QVERIFY(shown().startsWith(QStringLiteral("Tiny\n")));
    const QString other = m_opened->path(QStringLiteral("other/other.dsg"));
    Testing::writeFile(other,
                       Testing::toText(Testing::designWithFiles(100, QStringLiteral("Other"), {})));
    m_opened->session.open({other});
    QVERIFY(shown().endsWith(QStringLiteral("\nOther")));
    m_changes = 0;
    m_filter->setText(QStringLiteral("die"));
    QVERIFY(m_changes > 0);
}

void DesignPipelineTest::idsOfGroupsStayTheSame()
{
    const auto groupId = [this] {
        return m_pipeline->provideModel()->getTopLevelItems()[0]->getChildren()[0]->getId();
    };
    const IDCombiner before = groupId();
    QCOMPARE(m_opened->session.rename(objectId(1), QStringLiteral("Tiny")), QString());
    QVERIFY(groupId() == before);
    const DesignPipeline another(m_opened->session, m_filter, {});
    QVERIFY(m_catalog->find(before) == nullptr);
}

void DesignPipelineTest::countsWhatIsShown()
{
    shown();
    QCOMPARE(m_pipeline->shownCount(), 8);
    QCOMPARE(m_pipeline->shownCount(DesignSection::Operations), 3);
    QCOMPARE(m_pipeline->shownCount(DesignSection::LooseParts), 0);
    m_filter->setText(QStringLiteral("steel"));
    shown();
    QCOMPARE(m_pipeline->shownCount(), 2);
}

void DesignPipelineTest::tellsNamesOfGroups()
{
    const IDCombiner parts =
        m_pipeline->provideModel()->getTopLevelItems()[0]->getChildren()[0]->getId();
    QCOMPARE(m_pipeline->groupName(parts), QStringLiteral("Parts (2)"));
    QCOMPARE(m_pipeline->groupName(objectId(21)), QString());
    m_filter->setText(QStringLiteral("blank"));
    shown();
    QCOMPARE(m_pipeline->groupName(parts), QStringLiteral("Parts (1)"));
    m_filter->setText(QStringLiteral("steel"));
    shown();
    QCOMPARE(m_pipeline->groupName(parts), QString());
}

void DesignPipelineTest::tellsChangesOfSessionAndFilter()
{
    m_filter->setText(QStringLiteral("die"));
    QVERIFY(m_changes > 0);
    m_changes = 0;
    QCOMPARE(m_opened->session.rename(objectId(21), QStringLiteral("Upper die")), QString());
    QVERIFY(m_changes > 0);
}

void DesignPipelineTest::nothingOpenIsAnEmptyModel()
{
    m_opened->session.close();
    QVERIFY(m_pipeline->provideModel()->empty());
    QCOMPARE(m_pipeline->shownCount(), 0);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::DesignPipelineTest;
ZORVANE_TEST(DesignPipelineTest)
#include "DesignPipelineTest.moc"
