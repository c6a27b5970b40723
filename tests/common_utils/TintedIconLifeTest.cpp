#include "common_utils/TestIcons.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

const QColor tint(0x1c, 0x8a, 0x3c);

/// An application among others in a process.
template <typename Kind>
class Application
{
public:
    Application()
        : m_application(m_count, m_arguments)
    {
    }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = {m_name, nullptr};
    Kind m_application;
};

/// An engine that counts how many there are of it.
class LivingEngine : public CountingEngine
{
public:
    explicit LivingEngine(int *asked)
        : CountingEngine(asked)
    {
        ++living;
    }
    LivingEngine(const LivingEngine &other)
        : CountingEngine(other)
    {
        ++living;
    }
    LivingEngine &operator=(const LivingEngine &) = delete;
    ~LivingEngine() override { --living; }

    QIconEngine *clone() const override { return new LivingEngine(*this); }

    static inline int living = 0;
};

} // namespace

/// That nothing of an application's icons is kept longer than the application.
class TintedIconLifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void iconsEndWithTheApplication()
    {
        int asked = 0;
        {
            const Application<QApplication> application;
            pixels(tinted(QIcon(new LivingEngine(&asked)), tint), 16);
            // It is kept, to be found by whoever tints the same icon again.
            QCOMPARE(LivingEngine::living, 1);
        }
        QCOMPARE(LivingEngine::living, 0);
    }

    void picturesEndWithTheApplication()
    {
        int asked = 0;
        QIcon icon;
        // One without a style, which would tell it from the next one.
        using Plain = Application<QGuiApplication>;
        auto application = std::make_unique<Plain>();
        icon = tinted(QIcon(new CountingEngine(&asked)), tint);
        const auto show = [&] {
            const int before = asked;
            pixels(icon, 16);
            return asked - before;
        };
        const auto measure = [&] {
            const int before = asked;
            icon.actualSize({16, 16});
            return asked - before;
        };
        QVERIFY(show() > 0 && measure() > 0);
        QVERIFY(show() == 0 && measure() == 0);
        application.reset();
        application = std::make_unique<Plain>();
        QVERIFY(show() > 0);
        QVERIFY(measure() > 0);
        icon = QIcon();
    }
};

QTEST_APPLESS_MAIN(TintedIconLifeTest)
#include "TintedIconLifeTest.moc"
