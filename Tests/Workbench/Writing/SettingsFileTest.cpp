#include "Workbench/Writing/SettingsFile.h"

#include "Tests/Support/TestCase.h"

#include <QtCore/QFile>
#include <QtCore/QPoint>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

class SettingsFileTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void storedValues_comeBack_data();
    void storedValues_comeBack();
    void textWrittenByHand_isRead();
    void damagedFile_isReported();

private:
    QString path() const { return m_folder.filePath(QStringLiteral("settings.json")); }

    const QTemporaryDir m_folder;
};

void SettingsFileTest::storedValues_comeBack_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(QStringLiteral("Blechhalter \"ü\" / \\ %1"));
    QTest::newRow("number") << QVariant(42);
    QTest::newRow("fraction") << QVariant(0.25);
    QTest::newRow("truth value") << QVariant(true);
    QTest::newRow("no text") << QVariant(QString());
    QTest::newRow("paths") << QVariant(
        QStringList{QStringLiteral("/a,b"), QStringLiteral("/c;d"), {}});
    QTest::newRow("no paths") << QVariant(QStringList());
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\x01", 3));
    QTest::newRow("point") << QVariant(QPoint(-3, 4));
}

void SettingsFileTest::storedValues_comeBack()
{
    QFETCH(QVariant, value);
    const QString key = QStringLiteral("Group/Key with blank");
    {
        QSettings writing(path(), settingsFileFormat());
        writing.setValue(key, value);
    }
    // Another name: QSettings keeps in memory what it has written.
    const QString copy = m_folder.filePath(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(QFile::copy(path(), copy));
    QVariant found = QSettings(copy, settingsFileFormat()).value(key);
    QVERIFY(found.convert(value.userType()));
    QCOMPARE(found, value);
}

void SettingsFileTest::textWrittenByHand_isRead()
{
    const QString file = m_folder.filePath(QStringLiteral("hand.json"));
    QFile writing(file);
    QVERIFY(writing.open(QIODevice::WriteOnly));
    writing.write(R"({"Paths/Documents": "/designs/geometry"})");
    writing.close();
    const QSettings read(file, settingsFileFormat());
    QCOMPARE(read.value(QStringLiteral("Paths/Documents")).toString(),
             QStringLiteral("/designs/geometry"));
}

void SettingsFileTest::damagedFile_isReported()
{
    const QString file = m_folder.filePath(QStringLiteral("damaged.json"));
    QFile writing(file);
    QVERIFY(writing.open(QIODevice::WriteOnly));
    writing.write("{\"a\":");
    writing.close();
    QCOMPARE(QSettings(file, settingsFileFormat()).status(), QSettings::FormatError);
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::SettingsFileTest;
ZORVANE_TEST(SettingsFileTest)
#include "SettingsFileTest.moc"
