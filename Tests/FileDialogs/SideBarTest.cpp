#include "FileDialogs/SideBar.h"

#include "Tests/FileDialogs/ConfiguredDialogTestCase.h"

#include <QtWidgets/QSplitter>

using namespace Zorvane;
using namespace Zorvane::Testing;

namespace {

const QString s_shortName = QStringLiteral("a");
const QString s_longName = QStringLiteral("deep drawn parts of the rear door");

const QListView& sideBarOf(const QFileDialog& dialog)
{
    return *dialog.findChild<QListView*>(QStringLiteral("sidebar"));
}

QSplitter& splitterOf(const QFileDialog& dialog)
{
    return *dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
}

int widthOfNames(const QFileDialog& dialog)
{
    return sideBarOf(dialog).sizeHintForColumn(0);
}

/** What Qt keeps of one dialog for the next, and nothing else of its settings. */
void forgetWidths()
{
    QSettings(QSettings::UserScope, QStringLiteral("QtProject"))
        .remove(QStringLiteral("FileDialog"));
}

bool areNamesWhole(const QFileDialog& dialog)
{
    return sideBarOf(dialog).viewport()->width() >= widthOfNames(dialog);
}

/** But for the handle between the two and what is lost by rounding. */
bool isAThird(const QFileDialog& dialog)
{
    const int width = sideBarOf(dialog).width();
    const int whole = splitterOf(dialog).width();
    return 3 * width <= whole && 3 * width >= whole - splitterOf(dialog).handleWidth() - 6;
}

using Ask = std::function<QString(PathProvider*)>;

} // namespace

Q_DECLARE_METATYPE(Ask)

/** By itself, Qt makes the side bar as wide as the first of its places. */
class SideBarTest : public ConfiguredDialogTestCase
{
    Q_OBJECT

private:
    /** So wide that the names take this share of it. */
    std::unique_ptr<QFileDialog> dialogFor(double shareOfNames) const;

private Q_SLOTS:
    void init();
    void cleanup();
    void namesAreShownWhole();
    void aThirdOfTheDialogIsTheMost();
    void aWiderBarStays();
    void dialogsUnderAConfigurationAreWidened();
    void plainDialogsAreWidened_data();
    void plainDialogsAreWidened();
};

void SideBarTest::init()
{
    ConfiguredDialogTestCase::init();
    forgetWidths();
    QList<QUrl> urls;
    for (const QString& name : {s_shortName, s_longName}) {
        QVERIFY(QDir(m_dir->path()).mkpath(name));
        urls << QUrl::fromLocalFile(m_dir->filePath(name));
    }
    // What one offers is offered by all that come later.
    QFileDialog().setSidebarUrls(urls);
}

void SideBarTest::cleanup()
{
    forgetWidths();
    TestCase::cleanup();
}

std::unique_ptr<QFileDialog> SideBarTest::dialogFor(double shareOfNames) const
{
    auto dialog = std::make_unique<QFileDialog>();
    dialog->resize(int(widthOfNames(*dialog) / shareOfNames), 500);
    dialog->show();
    return dialog;
}

void SideBarTest::namesAreShownWhole()
{
    QVERIFY(!areNamesWhole(*dialogFor(0.2)));
    const SideBarWidening widening;
    QVERIFY(areNamesWhole(*dialogFor(0.2)));
}

void SideBarTest::aThirdOfTheDialogIsTheMost()
{
    const SideBarWidening widening;
    const auto dialog = dialogFor(0.4);
    QVERIFY(!areNamesWhole(*dialog));
    QVERIFY(isAThird(*dialog));
}

void SideBarTest::aWiderBarStays()
{
    const auto dialog = dialogFor(0.2);
    QSplitter& splitter = splitterOf(*dialog);
    splitter.setSizes({splitter.width() / 2, splitter.width() / 2});
    const int before = sideBarOf(*dialog).width();
    QVERIFY(areNamesWhole(*dialog));
    widenSideBar(*dialog);
    QCOMPARE(sideBarOf(*dialog).width(), before);
}

void SideBarTest::dialogsUnderAConfigurationAreWidened()
{
    open([](QFileDialog& dialog) {
        QVERIFY(areNamesWhole(dialog) || isAThird(dialog));
        dialog.reject();
    });
}

void SideBarTest::plainDialogsAreWidened_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("open") << Ask([](PathProvider* provider) {
        return FileDialog::getOpenFileName(meshCaption, meshFilter, provider, meshScope);
    });
    QTest::newRow("save") << Ask([](PathProvider* provider) {
        return FileDialog::getSaveFileName(meshCaption, meshFilter, provider, meshScope, QString());
    });
    QTest::newRow("folder") << Ask([](PathProvider* provider) {
        return FileDialog::getExistingDirectoryName(meshCaption, provider, meshScope);
    });
}

void SideBarTest::plainDialogsAreWidened()
{
    QFETCH(Ask, ask);
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, [](QFileDialog& dialog) {
        QVERIFY(areNamesWhole(dialog) || isAThird(dialog));
        dialog.reject();
    });
    QCOMPARE(ask(&m_provider), QString());
}

ZORVANE_TEST(SideBarTest)
#include "SideBarTest.moc"
