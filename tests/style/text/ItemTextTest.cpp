#include <style/text/Paragraph.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <support/Text.h>

using TARN::Paragraph;
using TARN::ParagraphSetting;
using TARN::Mnemonic;

namespace {

ParagraphSetting settingOf(const QString &string, int width = 200)
{
    ParagraphSetting setting;
    setting.text = string;
    setting.font = QFont(text("DejaVu Sans"), 10);
    setting.room = QSize(width, 20);
    return setting;
}

QImage pictureOf(const ParagraphSetting &setting, const QColor &pen = Qt::black)
{
    QImage picture(220, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(pen);
    Paragraph::of(setting)->draw(painter, {5, 5});
    return picture;
}

/// Returns what the toolkit draws of a text in which ampersands mark keys.
QImage toolkitPicture(const ParagraphSetting &setting, int flag)
{
    QImage picture(220, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    painter.setFont(setting.font);
    painter.drawText(QRect(QPoint(5, 5), setting.room),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | flag, setting.text);
    return picture;
}

} // namespace

Q_DECLARE_METATYPE(TARN::ParagraphSetting)

/// Texts that are laid out once and drawn many times.
class ItemTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontOfAnotherResolutionIsNotTakenForTheSame()
    {
        QImage dense(10, 10, QImage::Format_RGB32);
        dense.setDotsPerMeterX(4 * dense.dotsPerMeterX());
        dense.setDotsPerMeterY(4 * dense.dotsPerMeterY());
        ParagraphSetting setting = settingOf(text("Resolution"));
        const qreal height = Paragraph::of(setting)->ink().height();
        const QFont font = setting.font;
        setting.font = QFont(font, &dense);
        QCOMPARE(setting.font, font);
        QVERIFY(Paragraph::of(setting)->ink().height() > 2 * height);
    }

    void mnemonics_data()
    {
        QTest::addColumn<QString>("string");
        QTest::addColumn<QString>("hidden");
        QTest::addColumn<QString>("underlined");
        const auto add = [](const char *string, const char *hidden, const char *underlined) {
            QTest::newRow(string) << text(string) << text(hidden) << text(underlined);
        };
        add("Plain", "Plain", "Plain");
        add("&File", "File", "File");
        add("Save &as", "Save as", "Save as");
        add("Drag && drop", "Drag & drop", "Drag & drop");
        add("Drag && &drop", "Drag & drop", "Drag & drop");
        add("Last&", "Last", "Last");
        add("Open (&O)", "Open (O)", "Open (O)");
        add("Odd (&&)", "Odd (&)", "Odd (&)");
    }

    void mnemonics()
    {
        QFETCH(QString, string);
        QFETCH(QString, hidden);
        QFETCH(QString, underlined);
        ParagraphSetting setting = settingOf(string);
        QCOMPARE(Paragraph(setting).visibleText(), string);
        setting.mnemonic = Mnemonic::Hidden;
        QCOMPARE(Paragraph(setting).visibleText(), hidden);
        QCOMPARE(pictureOf(setting), toolkitPicture(setting, Qt::TextHideMnemonic));
        setting.mnemonic = Mnemonic::Underlined;
        QCOMPARE(Paragraph(setting).visibleText(), underlined);
        QCOMPARE(pictureOf(setting), toolkitPicture(setting, Qt::TextShowMnemonic));
    }

    void mnemonicOfElidedText()
    {
        ParagraphSetting setting = settingOf(text("&Wide enough for nothing"), 80);
        setting.mnemonic = Mnemonic::Hidden;
        const QImage plain = pictureOf(setting);
        setting.mnemonic = Mnemonic::Underlined;
        QVERIFY(Paragraph(setting).visibleText().endsWith(QChar(0x2026)));
        QVERIFY(pictureOf(setting) != plain);
        setting.text = text("Wide enough for &nothing");
        QCOMPARE(pictureOf(setting), plain);
    }

    void keepsTexts()
    {
        const auto first = Paragraph::of(settingOf(text("Kept")));
        QCOMPARE(Paragraph::of(settingOf(text("Kept"))), first);
    }

    void distinguishesSettings_data()
    {
        QTest::addColumn<ParagraphSetting>("other");
        const ParagraphSetting setting = settingOf(text("One text"));
        ParagraphSetting other = setting;
        other.font.setBold(true);
        QTest::newRow("font") << other;
        other = setting;
        other.room.rheight() += 1;
        QTest::newRow("room") << other;
        other = setting;
        other.alignment = Qt::AlignRight | Qt::AlignVCenter;
        QTest::newRow("alignment") << other;
        other = setting;
        other.elideMode = Qt::ElideNone;
        QTest::newRow("elide mode") << other;
        other = setting;
        other.direction = Qt::RightToLeft;
        QTest::newRow("direction") << other;
        other = setting;
        other.isWrapped = true;
        QTest::newRow("wrapping") << other;
        other = setting;
        other.mnemonic = Mnemonic::Hidden;
        QTest::newRow("mnemonic") << other;
    }

    void distinguishesSettings()
    {
        QFETCH(ParagraphSetting, other);
        QVERIFY(Paragraph::of(settingOf(text("One text"))) != Paragraph::of(other));
    }

    void drawsInAnyColor()
    {
        const ParagraphSetting setting = settingOf(text("Colour"));
        pictureOf(setting, Qt::black);
        const QImage red = pictureOf(setting, Qt::red);
        for (int y = 0; y < red.height(); ++y) {
            for (int x = 0; x < red.width(); ++x) {
                QCOMPARE(red.pixelColor(x, y).red(), 255);
            }
        }
        QVERIFY(red != pictureOf(settingOf(QString()), Qt::red));
    }

    /// What was dropped looks the same when it is laid out again.
    void survivesMoreTextsThanAreKept()
    {
        const ParagraphSetting setting = settingOf(text("First"));
        const auto first = Paragraph::of(setting);
        const QImage picture = pictureOf(setting);
        for (int i = 0; i < 3000; ++i) {
            Paragraph::of(settingOf(QString::number(i)));
        }
        QVERIFY(Paragraph::of(setting) != first);
        QCOMPARE(pictureOf(setting), picture);
    }

    void longTexts()
    {
        const auto longText = Paragraph::of(settingOf(QString(200000, QLatin1Char('m'))));
        QVERIFY(longText->visibleText().size() < 100);
    }

    void ink()
    {
        const Paragraph fitting(settingOf(text("Fits")));
        QVERIFY(QRectF(0, 0, 200, 20).contains(fitting.ink()));
        ParagraphSetting wide = settingOf(text("Wider than its room"), 40);
        wide.elideMode = Qt::ElideNone;
        QVERIFY(Paragraph(wide).ink().right() > 40);
        ParagraphSetting high = settingOf(text("High"));
        high.room.setHeight(5);
        QVERIFY(Paragraph(high).ink().height() > 5);
    }
};

QTEST_MAIN(ItemTextTest)
#include "ItemTextTest.moc"
