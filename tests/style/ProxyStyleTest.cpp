#include <style/ProxyStyle_p.h>

#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

namespace {

/// Reads \a digits of \a text from \a position as a number whose lowest nibble stands first.
quint64 number(const QString &text, int position, int digits)
{
    quint64 value = 0;
    for (int i = digits - 1; i >= 0; --i) {
        value = value * 16 + QString(text.at(position + i)).toUInt(nullptr, 16);
    }
    return value;
}

} // namespace

/// Pixmap-cache keys and accessible roles.
class ProxyStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyHoldsTheOption()
    {
        QStyleOptionSlider option;
        option.state = QStyle::State(0x12345678);
        option.direction = Qt::RightToLeft;
        option.activeSubControls = QStyle::SC_ScrollBarSlider;
        const QString key = QStringLiteral("slider-");
        const QString name = TARN::ProxyStyle_p::uniqueName(key, &option, QSize(258, 3));
        QVERIFY(name.startsWith(key));
        const QString digits = name.mid(key.size());
        QCOMPARE(digits.size(), 56);
        QCOMPARE(digits.left(16), QStringLiteral("8765432110000000"));
        QCOMPARE(number(digits, 16, 8), quint64(QStyle::SC_ScrollBarSlider));
        QCOMPARE(number(digits, 24, 16), quint64(option.palette.cacheKey()));
        QCOMPARE(digits.mid(40), QStringLiteral("2010000030000000"));
    }

    void plainOptionHasNoSubControls()
    {
        QStyleOptionButton option;
        const QString name = TARN::ProxyStyle_p::uniqueName(QString(), &option, QSize(-1, 0));
        QCOMPARE(name.size(), 56);
        QCOMPARE(name.mid(16, 8), QStringLiteral("00000000"));
        QCOMPARE(name.mid(40), QStringLiteral("ffffffff00000000"));
    }

    void spinBoxesAddTheirButtons()
    {
        QStyleOptionSpinBox option;
        option.buttonSymbols = QAbstractSpinBox::PlusMinus;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        option.frame = true;
        const QString framed = TARN::ProxyStyle_p::uniqueName(QString(), &option, QSize(1, 1));
        QCOMPARE(framed.mid(56), QStringLiteral("10000000300000001"));
        option.frame = false;
        const QString frameless = TARN::ProxyStyle_p::uniqueName(QString(), &option, QSize(1, 1));
        QCOMPARE(frameless.mid(56), QStringLiteral("10000000300000000"));
    }

    void rolesAreTested()
    {
        QPushButton button;
        QVERIFY(TARN::ProxyStyle_p::isInstanceOf(&button, QAccessible::PushButton));
        QVERIFY(!TARN::ProxyStyle_p::isInstanceOf(&button, QAccessible::ComboBox));
        QObject object;
        QVERIFY(!TARN::ProxyStyle_p::isInstanceOf(&object, QAccessible::PushButton));
        QVERIFY(!TARN::ProxyStyle_p::isInstanceOf(nullptr, QAccessible::PushButton));
    }
};

QTEST_MAIN(ProxyStyleTest)
#include "ProxyStyleTest.moc"
