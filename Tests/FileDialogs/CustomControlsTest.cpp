#include "FileDialogs/CustomControls.h"

#include "Tests/FileDialogs/ConfiguredDialogTestCase.h"

#include <QtGui/QWindow>

using namespace Zorvane;
using namespace Zorvane::Testing;

class CustomControlsTest : public ConfiguredDialogTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controlsLieBelowTheList();
    void prominentControlsLieBesideTheButtons();
    void controlsHaveTheirInitialValues();
    void controlsTellWhatTheUserDoes();
    void controlStatesAreShown_data();
    void controlStatesAreShown();
    void handlerChangesControlStates();
    void unknownKindAddsNoControl();
    void withoutHandlerThereAreNoControls();
    void keyboardReachesEverything();
    void mnemonicsReachControls();
    void textWithoutAMnemonic_getsAFreeOne();
    void wideAndManyControls_leaveTheNameItsWidth();
};

void CustomControlsTest::controlsLieBelowTheList()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    CustomItem units = comboBox(2, {QStringLiteral("mm"), QStringLiteral("inch")}, 0);
    units.groupLabel = QStringLiteral("Units:");
    m_configuration->addCustomControl(units);
    open([](QFileDialog& dialog) {
        const QRect types = rectIn(part<QComboBox>(dialog, "fileTypeCombo"), dialog);
        const QRect preview = rectIn(custom<QCheckBox>(dialog, "Preview"), dialog);
        const QRect combo = rectIn(customCombo(dialog, QStringLiteral("mm")), dialog);
        const QRect label = rectIn(custom<QLabel>(dialog, "Units:"), dialog);
        QVERIFY(preview.top() > types.bottom());
        QVERIFY(combo.top() > preview.bottom());
        QVERIFY(label.right() < combo.left());
        QVERIFY(label.center().y() > preview.bottom());
        QCOMPARE(combo.left(), types.left());
        dialog.reject();
    });
}

void CustomControlsTest::prominentControlsLieBesideTheButtons()
{
    CustomItem item = checkBox(1, "Preview");
    item.prominent = true;
    m_configuration->addCustomControl(item);
    item = comboBox(2, {QStringLiteral("mm"), QStringLiteral("inch")}, 0);
    item.prominent = true;
    item.groupLabel = QStringLiteral("Units:");
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        const QRect button = rectIn(openButton(dialog), dialog);
        for (QWidget* widget : {static_cast<QWidget*>(custom<QCheckBox>(dialog, "Preview")),
                                static_cast<QWidget*>(custom<QLabel>(dialog, "Units:")),
                                static_cast<QWidget*>(customCombo(dialog, QStringLiteral("mm")))}) {
            const QRect rect = rectIn(widget, dialog);
            QVERIFY(rect.right() < button.left());
            QVERIFY(rect.top() > rectIn(part<QComboBox>(dialog, "fileTypeCombo"), dialog).bottom());
        }
        dialog.reject();
    });
}

void CustomControlsTest::controlsHaveTheirInitialValues()
{
    m_configuration->addCustomControl(checkBox(1, "On", true));
    m_configuration->addCustomControl(checkBox(2, "Off", false));
    m_configuration->addCustomControl(
        comboBox(3, {QStringLiteral("mm"), QStringLiteral("inch")}, 1));
    open([](QFileDialog& dialog) {
        QVERIFY(custom<QCheckBox>(dialog, "On")->isChecked());
        QVERIFY(!custom<QCheckBox>(dialog, "Off")->isChecked());
        QCOMPARE(customCombo(dialog, QStringLiteral("mm"))->currentText(), QStringLiteral("inch"));
        QCOMPARE(customCombo(dialog, QStringLiteral("mm"))->count(), 2);
        dialog.reject();
    });
    QCOMPARE(m_handler->events, QStringList(QStringLiteral("type")));
}

void CustomControlsTest::controlsTellWhatTheUserDoes()
{
    m_configuration->addCustomControl(checkBox(7, "Preview", true));
    m_configuration->addCustomControl(
        comboBox(9, {QStringLiteral("mm"), QStringLiteral("inch")}, 0));
    open([this](QFileDialog& dialog) {
        m_handler->events.clear();
        QTest::keyClick(custom<QCheckBox>(dialog, "Preview"), Qt::Key_Space);
        QTest::keyClick(customCombo(dialog, QStringLiteral("mm")), Qt::Key_Down);
        QTest::keyClick(custom<QCheckBox>(dialog, "Preview"), Qt::Key_Space);
        QCOMPARE(m_handler->events,
                 QStringList({QStringLiteral("toggled 7 0"), QStringLiteral("item 9 1"),
                              QStringLiteral("toggled 7 1")}));
        dialog.reject();
    });
}

void CustomControlsTest::controlStatesAreShown_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isVisible");
    QTest::newRow("neither") << 0 << false << false;
    QTest::newRow("enabled only") << 1 << true << false;
    QTest::newRow("visible only") << 2 << false << true;
    QTest::newRow("both") << 3 << true << true;
}

void CustomControlsTest::controlStatesAreShown()
{
    QFETCH(int, state);
    CustomItem item = checkBox(1, "Preview");
    item.groupLabel = QStringLiteral("View:");
    item.controlState = state;
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QFETCH(bool, isEnabled);
        QFETCH(bool, isVisible);
        QCOMPARE(custom<QCheckBox>(dialog, "Preview")->isEnabled(), isEnabled);
        QCOMPARE(custom<QCheckBox>(dialog, "Preview")->isVisible(), isVisible);
        QCOMPARE(custom<QLabel>(dialog, "View:")->isVisible(), isVisible);
        dialog.reject();
    });
}

void CustomControlsTest::handlerChangesControlStates()
{
    m_configuration->addCustomControl(checkBox(1, "Details", false));
    m_configuration->addCustomControl(comboBox(2, {QStringLiteral("mm")}, 0));
    m_handler->onToggle = [](bool checked, const FileDialogCallbackInterface& callbacks) {
        callbacks.setControlState(2, checked ? 3 : 0);
        callbacks.setControlState(202, checked ? 3 : 0);
        callbacks.setControlState(77, 0);
    };
    open([](QFileDialog& dialog) {
        auto* details = custom<QCheckBox>(dialog, "Details");
        auto* units = customCombo(dialog, QStringLiteral("mm"));
        details->click();
        QVERIFY(units->isEnabled() && units->isVisible());
        details->click();
        QVERIFY(!units->isEnabled() && !units->isVisible());
        dialog.reject();
    });
}

void CustomControlsTest::unknownKindAddsNoControl()
{
    CustomItem item = checkBox(1, "Unknown");
    item.controlType = 5;
    item.prominent = true;
    item.groupLabel = QStringLiteral("Of an unknown kind");
    m_configuration->addCustomControl(item);
    m_configuration->addCustomControl(checkBox(2, "Known"));
    open([](QFileDialog& dialog) {
        QVERIFY(!custom<QCheckBox>(dialog, "Unknown"));
        QVERIFY(custom<QLabel>(dialog, "Of an unknown kind")->isVisible());
        QVERIFY(custom<QCheckBox>(dialog, "Known")->isVisible());
        dialog.reject();
    });
}

void CustomControlsTest::withoutHandlerThereAreNoControls()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    m_configuration->setEventHandler(nullptr);
    open([](QFileDialog& dialog) {
        QVERIFY(!custom<QCheckBox>(dialog, "Preview"));
        dialog.reject();
    });
}

void CustomControlsTest::keyboardReachesEverything()
{
    m_configuration->addCustomControl(checkBox(1, "First"));
    m_configuration->addCustomControl(comboBox(2, {QStringLiteral("mm")}, 0));
    CustomItem item = checkBox(3, "Third");
    item.prominent = true;
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        QTRY_COMPARE(dialog.focusWidget(), nameEdit(dialog));
        // With a name of a file, the open button is on the way as well.
        nameEdit(dialog)->setText(QStringLiteral("a.stl"));
        QTRY_VERIFY(openButton(dialog)->isEnabled());
        const QList<QWidget*> way{part<QComboBox>(dialog, "fileTypeCombo"),
                                  custom<QCheckBox>(dialog, "First"),
                                  customCombo(dialog, QStringLiteral("mm")),
                                  custom<QCheckBox>(dialog, "Third"),
                                  openButton(dialog),
                                  cancelButton(dialog)};
        for (QWidget* next : way) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QCOMPARE(dialog.focusWidget(), next);
        }
        for (int i = way.size() - 2; i >= 0; --i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab);
            QCOMPARE(dialog.focusWidget(), way.at(i));
        }
        dialog.reject();
    });
}

void CustomControlsTest::mnemonicsReachControls()
{
    m_configuration->addCustomControl(checkBox(1, "&Preview"));
    CustomItem item = comboBox(2, {QStringLiteral("mm")}, 0);
    item.groupLabel = QStringLiteral("&Units:");
    m_configuration->addCustomControl(item);
    open([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        QTest::keyClick(dialog.windowHandle(), Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(custom<QCheckBox>(dialog, "&Preview")->isChecked());
        QTest::keyClick(dialog.windowHandle(), Qt::Key_U, Qt::AltModifier);
        QTRY_COMPARE(dialog.focusWidget(), customCombo(dialog, QStringLiteral("mm")));
        dialog.reject();
    });
}

void CustomControlsTest::textWithoutAMnemonic_getsAFreeOne()
{
    m_configuration->addCustomControl(checkBox(1, "Preview"));
    m_configuration->addCustomControl(checkBox(2, "Points only"));
    m_configuration->addCustomControl(checkBox(3, "R&epair"));
    m_configuration->addCustomControl(checkBox(4, "Fuse R&&D"));
    CustomItem units = comboBox(5, {QStringLiteral("mm")}, 0);
    units.groupLabel = QStringLiteral("Units:");
    m_configuration->addCustomControl(units);
    open([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        QStringList letters;
        for (const auto* label : dialog.findChildren<QLabel*>())
            letters << QKeySequence::mnemonic(label->text()).toString();
        for (const auto* button : dialog.findChildren<QAbstractButton*>())
            letters << QKeySequence::mnemonic(button->text()).toString();
        letters.removeAll(QString());
        QCOMPARE(letters.removeDuplicates(), 0);
        QCOMPARE(custom<QCheckBox>(dialog, "Preview")->text(), QStringLiteral("&Preview"));
        QCOMPARE(custom<QCheckBox>(dialog, "Repair")->text(), QStringLiteral("R&epair"));
        QCOMPARE(custom<QCheckBox>(dialog, "Fuse RD")->text(), QStringLiteral("Fuse R&&D"));
        QTest::keyClick(dialog.windowHandle(), Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(custom<QCheckBox>(dialog, "Preview")->isChecked());
        dialog.reject();
    });
}

void CustomControlsTest::wideAndManyControls_leaveTheNameItsWidth()
{
    int plainWidth = 0;
    open([&plainWidth](QFileDialog& dialog) {
        plainWidth = nameEdit(dialog)->width();
        dialog.reject();
    });
    const QString wide = QStringLiteral("A text that is longer than any that is good to read. ");
    for (int i = 0; i < 3; ++i) {
        CustomItem item = comboBox(i, {wide + wide}, 0);
        item.prominent = i == 0;
        item.groupLabel = QStringLiteral("Label %1:").arg(i);
        m_configuration->addCustomControl(item);
    }
    CustomItem box = checkBox(9, "Keep what there is in the file");
    box.prominent = true;
    m_configuration->addCustomControl(box);
    open([&](QFileDialog& dialog) {
        QVERIFY(nameEdit(dialog)->width() >= plainWidth);
        QVERIFY(dialog.frameGeometry().width() <= 800);
        dialog.reject();
    });
}

ZORVANE_TEST(CustomControlsTest)
#include "CustomControlsTest.moc"
