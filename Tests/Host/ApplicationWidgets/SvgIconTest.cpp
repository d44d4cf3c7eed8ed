#include "Host/ApplicationWidgets/SvgIcon.h"

#include "Host/ScopedReplacement.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>

#include <memory>

using namespace Zorvane;

namespace {

/** A drawing of one rectangle that fills it. */
QByteArray filled(const char* colour, int size = 16)
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %1\" "
                          "width=\"%1\" height=\"%1\">"
                          "<path d=\"M0 0h%1v%1H0z\" fill=\"%2\"/></svg>")
        .arg(size)
        .arg(QString::fromLatin1(colour))
        .toUtf8();
}

QColor middle(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

QColor middle(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, int size = 16)
{
    return middle(icon.pixmap(QSize(size, size), mode));
}

bool isBlank(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
    return true;
}

QPalette paletteOf(const QColor& text, const QColor& window)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x60, 0x70, 0x80));
    palette.setColor(QPalette::HighlightedText, Qt::cyan);
    return palette;
}

} // namespace

class SvgIconTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isReadWhenItIsFirstPainted();
    void isReadOnce();
    void followsThePalette();
    void keepsTheColoursOfTheDrawing();
    void aDisabledIconFades();
    void aSelectedIconIsDrawnAsSelectedText();
    void twoSizesHaveTwoDrawings_data();
    void twoSizesHaveTwoDrawings();
    void theSmallDrawingServesSharpScreens();
    void keepsItsShapeInAnyRectangle();
    void aCopyPaintsTheSame();
    void anEmptyPathGivesANullIcon();
    void aMissingFileIsToldWhenItIsPainted();
    void aDamagedFileLeavesTheIconEmpty();

    void everyDrawingOfTheSuiteCanBeSeen_data();
    void everyDrawingOfTheSuiteCanBeSeen();

private:
    QString write(const char* name, const QByteArray& content)
    {
        const QString path = m_folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path
                                                                                        : QString();
    }

    QTemporaryDir m_folder;
    QPalette m_before;
    void replacedFactory_makesTheIcons();
};

void SvgIconTest::init()
{
    m_before = QGuiApplication::palette();
    QGuiApplication::setPalette(paletteOf(Qt::black, Qt::white));
    QPixmapCache::clear();
}

void SvgIconTest::cleanup()
{
    QGuiApplication::setPalette(m_before);
    TestCase::cleanup();
}

void SvgIconTest::isReadWhenItIsFirstPainted()
{
    const QIcon icon = createSvgIcon(m_folder.filePath(QStringLiteral("late.svg")));
    QVERIFY(!icon.isNull());
    write("late.svg", filled("#ff0000"));
    QCOMPARE(middle(icon), QColor(Qt::red));
}

void SvgIconTest::isReadOnce()
{
    const QString path = write("once.svg", filled("#ff0000"));
    const QIcon icon = createSvgIcon(path);
    QCOMPARE(middle(icon), QColor(Qt::red));
    QVERIFY(QFile::remove(path));
    QCOMPARE(middle(icon, QIcon::Normal, 40), QColor(Qt::red));
}

void SvgIconTest::followsThePalette()
{
    const QIcon icon = createSvgIcon(write("current.svg", filled("currentColor")));
    QCOMPARE(middle(icon), QColor(Qt::black));
    QGuiApplication::setPalette(paletteOf(QColor(0xe3, 0xe8, 0xee), Qt::black));
    QCOMPARE(middle(icon), QColor(0xe3, 0xe8, 0xee));
    QCOMPARE(middle(icon, QIcon::Active), QColor(0xe3, 0xe8, 0xee));
}

void SvgIconTest::keepsTheColoursOfTheDrawing()
{
    const QIcon icon = createSvgIcon(write("accent.svg", filled("#d9730d")));
    QCOMPARE(middle(icon), QColor(0xd9, 0x73, 0x0d));
    QGuiApplication::setPalette(paletteOf(Qt::white, Qt::black));
    QCOMPARE(middle(icon), QColor(0xd9, 0x73, 0x0d));
}

void SvgIconTest::aDisabledIconFades()
{
    const QIcon outline = createSvgIcon(write("outline.svg", filled("currentColor")));
    const QIcon accent = createSvgIcon(write("faded.svg", filled("#d9730d")));
    QCOMPARE(middle(outline, QIcon::Disabled), QColor(0x60, 0x70, 0x80));
    const QColor window = QGuiApplication::palette().color(QPalette::Disabled, QPalette::Window);
    const QColor faded = middle(accent, QIcon::Disabled);
    QCOMPARE(faded.red(), (0x60 + window.red()) / 2);
    QVERIFY2(faded != middle(outline, QIcon::Disabled), "what was told apart by colour still is");
}

void SvgIconTest::aSelectedIconIsDrawnAsSelectedText()
{
    const QIcon icon = createSvgIcon(write("selected.svg", filled("currentColor")));
    QCOMPARE(middle(icon, QIcon::Selected), QColor(Qt::cyan));
}

void SvgIconTest::twoSizesHaveTwoDrawings_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QColor>("colour");
    const QColor small(Qt::red);
    const QColor large(Qt::blue);
    QTest::newRow("8") << 8 << small;
    QTest::newRow("16") << 16 << small;
    QTest::newRow("23") << 23 << small;
    QTest::newRow("24") << 24 << large;
    QTest::newRow("32") << 32 << large;
    QTest::newRow("64") << 64 << large;
}

void SvgIconTest::twoSizesHaveTwoDrawings()
{
    QFETCH(int, size);
    write("two_16.svg", filled("#ff0000", 16));
    write("two_32.svg", filled("#0000ff", 32));
    const QIcon icon = createTwoSizeSvgIcon(m_folder.filePath(QStringLiteral("two")));
    const QPixmap pixmap = icon.pixmap(size, size);
    QCOMPARE(pixmap.size(), QSize(size, size));
    QTEST(middle(pixmap), "colour");
}

void SvgIconTest::theSmallDrawingServesSharpScreens()
{
    write("sharp_16.svg", filled("#ff0000", 16));
    write("sharp_32.svg", filled("#0000ff", 32));
    const QIcon icon = createTwoSizeSvgIcon(m_folder.filePath(QStringLiteral("sharp")));
    QImage screen(32, 32, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(2);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    icon.paint(&painter, 0, 0, 16, 16);
    painter.end();
    QCOMPARE(screen.pixelColor(16, 16), QColor(Qt::red));
    QCOMPARE(screen.pixelColor(31, 31), QColor(Qt::red));
}

void SvgIconTest::keepsItsShapeInAnyRectangle()
{
    const QIcon icon = createSvgIcon(write("shape.svg", filled("#ff0000")));
    const QImage wide = icon.pixmap(QSize(48, 16)).toImage();
    QCOMPARE(wide.size(), QSize(48, 16));
    QCOMPARE(wide.pixelColor(24, 8), QColor(Qt::red));
    QCOMPARE(wide.pixelColor(4, 8).alpha(), 0);
    QCOMPARE(wide.pixelColor(44, 8).alpha(), 0);
}

void SvgIconTest::aCopyPaintsTheSame()
{
    const QIcon icon = createSvgIcon(write("copied.svg", filled("#ff0000")));
    QIcon copy = icon;
    // Makes the copy's engine one of its own.
    copy.addPixmap(QPixmap());
    QCOMPARE(middle(copy), QColor(Qt::red));
}

void SvgIconTest::anEmptyPathGivesANullIcon()
{
    QVERIFY(createSvgIcon({}).isNull());
    QVERIFY(createTwoSizeSvgIcon({}).isNull());
}

void SvgIconTest::aMissingFileIsToldWhenItIsPainted()
{
    const QIcon icon = createTwoSizeSvgIcon(m_folder.filePath(QStringLiteral("missing")));
    expectWarning(QStringLiteral("missing_16\\.svg cannot be read"));
    QVERIFY(isBlank(icon.pixmap(16)));
    // Told once.
    QVERIFY(isBlank(icon.pixmap(17)));
}

void SvgIconTest::aDamagedFileLeavesTheIconEmpty()
{
    const QIcon icon = createSvgIcon(write("damaged.svg", "<svg><path d="));
    expectWarning(QStringLiteral("damaged\\.svg cannot be read"));
    QVERIFY(isBlank(icon.pixmap(16)));
}

void SvgIconTest::everyDrawingOfTheSuiteCanBeSeen_data()
{
    QTest::addColumn<QString>("path");
    for (const char* const root : {":/Icons", ":/AppIcons"}) {
        QDirIterator files(QString::fromLatin1(root), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(path)) << path;
        }
    }
}

void SvgIconTest::everyDrawingOfTheSuiteCanBeSeen()
{
    QFETCH(QString, path);
    const QIcon icon = createSvgIcon(path);
    for (const QColor& window : {QColor(Qt::white), QColor(0x2a, 0x2e, 0x34)}) {
        const QColor text = window == QColor(Qt::white) ? Qt::black : Qt::white;
        QGuiApplication::setPalette(paletteOf(text, window));
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
            // What remains of the drawing on the window: enough to see, and no plain block.
            const QImage image = icon.pixmap(QSize(16, 16), mode).toImage();
            int seen = 0;
            for (int y = 0; y < 16; ++y)
                for (int x = 0; x < 16; ++x)
                    seen += image.pixelColor(x, y).alpha() > 100 ? 1 : 0;
            QVERIFY2(seen >= 20, qPrintable(QString::number(seen)));
            QVERIFY2(seen < 250, qPrintable(QString::number(seen)));
        }
    }
}

void SvgIconTest::replacedFactory_makesTheIcons()
{
    struct Dots : IconFactory
    {
        QIcon createIcon(const QString&) const override
        {
            QPixmap dot(1, 1);
            dot.fill(Qt::red);
            return dot;
        }
    };
    const QString path = QStringLiteral(":/Icons/Shared/add_16.svg");
    {
        const ScopedReplacement<IconFactory> icons(std::make_shared<Dots>());
        QCOMPARE(createSvgIcon(path).availableSizes(), {QSize(1, 1)});
        QVERIFY(createTwoSizeSvgIcon(path).availableSizes().isEmpty());
    }
    QVERIFY(createSvgIcon(path).availableSizes().isEmpty());
}

ZORVANE_TEST(SvgIconTest)
#include "SvgIconTest.moc"
