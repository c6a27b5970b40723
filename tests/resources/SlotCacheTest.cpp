#include <resources/kept/SlotCache.h>

#include <QtTest/QtTest>

using TARN::SlotCache;

namespace {

int made = 0;
int season = 0;

/// Of numbers that differ by 100 the hashes are the same.
struct Number
{
    int number;
    bool isNegative = false;

    bool operator==(const Number &other) const
    {
        return number == other.number && isNegative == other.isNegative;
    }
    std::size_t hash() const { return std::size_t(number) % 100; }
};

QString spelled(const Number &number)
{
    ++made;
    return QString::number(number.isNegative ? -number.number : number.number);
}

struct Season
{
    int number;

    static Season current() { return {season}; }
    bool operator==(const Season &other) const { return number == other.number; }
};

} // namespace

/// The table of slots for values that painting asks for over and over.
class SlotCacheTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreMadeOnce()
    {
        SlotCache<Number, QString, 7> cache(spelled);
        QCOMPARE(cache.value({1}), QStringLiteral("1"));
        QCOMPARE(cache.value({2}), QStringLiteral("2"));
        QCOMPARE(cache.value({1}), QStringLiteral("1"));
        QCOMPARE(cache.value({2}), QStringLiteral("2"));
        QCOMPARE(made, 2);
    }

    /// Keys of one hash are told apart by all that they hold.
    void equalHashesAreNoEqualKeys()
    {
        SlotCache<Number, QString, 7> cache(spelled);
        QCOMPARE(cache.value({5}), QStringLiteral("5"));
        QCOMPARE(cache.value({105}), QStringLiteral("105"));
        QCOMPARE(cache.value({5, true}), QStringLiteral("-5"));
        QCOMPARE(cache.value({105, true}), QStringLiteral("-105"));
        QCOMPARE(cache.value({5}), QStringLiteral("5"));
    }

    void twoValuesOfOneHashAreKept()
    {
        SlotCache<Number, QString, 7> cache(spelled);
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(cache.value({5}), QStringLiteral("5"));
            QCOMPARE(cache.value({105}), QStringLiteral("105"));
        }
        QCOMPARE(made, 2);
    }

    void theOneThatWasUsedEarlierMakesPlace()
    {
        SlotCache<Number, QString, 7> cache(spelled);
        cache.value({5});
        cache.value({105});
        cache.value({5});
        cache.value({205});
        QCOMPARE(made, 3);
        cache.value({5});
        QCOMPARE(made, 3);
        cache.value({105});
        QCOMPARE(made, 4);
    }

    void otherCircumstancesDropAll()
    {
        SlotCache<Number, QString, 7, Season> cache(spelled);
        cache.value({1});
        cache.value({2});
        season = 1;
        cache.value({1});
        cache.value({2});
        QCOMPARE(made, 4);
        cache.value({1});
        QCOMPARE(made, 4);
    }

    void clearingDropsAll()
    {
        SlotCache<Number, QString, 7> cache(spelled);
        cache.value({1});
        cache.clear();
        QCOMPARE(cache.value({1}), QStringLiteral("1"));
        QCOMPARE(made, 2);
    }

    /// Making a value may ask for others, even for one that takes the same place.
    void valuesAreMadeOfEachOther()
    {
        using Sums = SlotCache<Number, int, 1>;
        static Sums *sums = nullptr;
        Sums cache([](const Number &key) {
            return key.number == 0 ? 0 : key.number + sums->value({key.number - 1});
        });
        sums = &cache;
        QCOMPARE(cache.value({10}), 55);
        QCOMPARE(cache.value({10}), 55);
        QCOMPARE(cache.value({4}), 10);
    }
};

QTEST_APPLESS_MAIN(SlotCacheTest)
#include "SlotCacheTest.moc"
