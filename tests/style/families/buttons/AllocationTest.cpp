#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/themes/PaintTheme.h>

// The sanitizers bring an allocator of their own.
#if defined(__SANITIZE_ADDRESS__)
#define MOX_COUNTS_ALLOCATIONS 0
#else
#define MOX_COUNTS_ALLOCATIONS 1
#endif

namespace {

int allocations = 0;

} // namespace

#if MOX_COUNTS_ALLOCATIONS

// The C library's own names for what the program's definitions below replace.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);

void *malloc(size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

void *calloc(size_t count, size_t size)
{
    ++allocations;
    return __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size)
{
    ++allocations;
    return __libc_realloc(memory, size);
}
}

#endif

namespace {

constexpr QSize pictureSize(120, 40);

/// Returns how often heap memory is taken when \a paint is called again and again.
template <typename Paint>
int allocationsOf(Paint paint)
{
    QImage picture(pictureSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    for (int i = 0; i < 3; ++i) {
        paint(painter);
    }
    const int before = allocations;
    paint(painter);
    return allocations - before;
}

QStyleOptionButton buttonOption(const QPushButton &button, QStyle::State state, const char *caption)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.rect = QRect(QPoint(), pictureSize);
    option.state = state;
    option.text = text(caption);
    return option;
}

} // namespace

/// That painting a widget again takes no heap memory.
class AllocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!MOX_COUNTS_ALLOCATIONS) {
            QSKIP("Allocations are not counted under a sanitizer.");
        }
    }

    void theCounterCounts()
    {
        const int count = allocationsOf([](QPainter & /*painter*/) { QVector<int> numbers(100); });
        QCOMPARE(count, 1);
    }

    void pushButtonAllocatesNothing_data()
    {
        QTest::addColumn<int>("state");
        const QStyle::State rest = QStyle::State_Enabled | QStyle::State_Active;
        QTest::newRow("rest") << int(rest);
        QTest::newRow("hover") << int(rest | QStyle::State_MouseOver);
        QTest::newRow("pressed") << int(rest | QStyle::State_Sunken);
        QTest::newRow("checked") << int(rest | QStyle::State_On);
        QTest::newRow("disabled") << int(QStyle::State_None);
    }

    void pushButtonAllocatesNothing()
    {
        QFETCH(int, state);
        const PaintTheme theme({2, 4, 6, 8});
        const TARN::BaseStyle style;
        QPushButton button;
        QStyleOptionButton option = buttonOption(button, QStyle::State(state), "");
        const int count = allocationsOf([&](QPainter &painter) {
            style.drawControl(QStyle::CE_PushButtonBevel, &option, &painter, &button);
        });
        QCOMPARE(count, 0);
    }

    void itsTextAllocatesNothing()
    {
        const PaintTheme theme({2, 4, 6, 8});
        const TARN::BaseStyle style;
        QPushButton button;
        const QStyle::State state = QStyle::State_Enabled | QStyle::State_Active;
        const QStyleOptionButton fresh = buttonOption(button, state, "Caption");
        const int count = allocationsOf([&](QPainter &painter) {
            // Painting prepares the option; a widget brings a new one each time.
            QStyleOptionButton option = fresh;
            style.drawControl(QStyle::CE_PushButton, &option, &painter, &button);
        });
        QCOMPARE(count, 0);
    }
};

QTEST_MAIN(AllocationTest)
#include "AllocationTest.moc"
