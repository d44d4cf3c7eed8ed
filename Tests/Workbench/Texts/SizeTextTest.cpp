#include "Workbench/Texts/SizeText.h"

#include "Tests/Support/TestCase.h"

#include <QtGui/QVector3D>

namespace Zorvane::Workbench {

class SizeTextTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAreToldInMillimetres();
    void lengthsAreToldInMillimetres();
    void figuresAreThoseOfTheLanguage();
    void figuresStayInOrderFromRightToLeft();
};

void SizeTextTest::sizesAreToldInMillimetres()
{
    const QLocale c = QLocale::c();
    QCOMPARE(sizeText({120, 80.5f, 45}, c), QStringLiteral("120 × 80.5 × 45 mm"));
    QCOMPARE(sizeText({0, 0.125f, 999.96f}, c), QStringLiteral("0 × 0.125 × 1000 mm"));
    QCOMPARE(sizeFigures({120, 80.5f, 45}, c), QStringLiteral("120 × 80.5 × 45"));
}

void SizeTextTest::lengthsAreToldInMillimetres()
{
    QCOMPARE(lengthText(50, QLocale::c()), QStringLiteral("50 mm"));
    QCOMPARE(lengthText(0.5, QLocale::c()), QStringLiteral("0.5 mm"));
}

void SizeTextTest::figuresAreThoseOfTheLanguage()
{
    QCOMPARE(lengthText(80.5, QLocale(QLocale::German)), QStringLiteral("80,5 mm"));
}

void SizeTextTest::figuresStayInOrderFromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QString text = lengthText(50, QLocale::c());
    const QString point = pointText({-1.5f, 2, 0.25f}, QLocale::c());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(text, QChar(0x2066) + QStringLiteral("50 mm") + QChar(0x2069));
    QCOMPARE(point, QChar(0x2066) + QStringLiteral("-1.50; 2.00; 0.25 mm") + QChar(0x2069));
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::SizeTextTest;
ZORVANE_TEST(SizeTextTest)
#include "SizeTextTest.moc"
