#include <style/BaseStyle.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

/// Texts that end where the room does, of which many are kept.
class ElidedTextTest : public QObject
{
    Q_OBJECT

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    /// Returns what is drawn of \a string in the label of a combo box.
    QString shown(const QString &string, const QFont &font, int width)
    {
        QStyleOptionComboBox option;
        option.rect = QRect(0, 0, width, 26);
        option.state = QStyle::State_Enabled;
        option.fontMetrics = QFontMetrics(font);
        option.currentText = string;
        m_recorder.picture(QStyle::CE_ComboBoxLabel, option, nullptr, QSize(200, 30));
        return m_recorder.call("drawItemText").text;
    }

    QString expected(const QString &string, const QFont &font) const
    {
        const int width = m_recorder.call("drawItemText").rect.width();
        return QFontMetrics(font).elidedText(string, Qt::ElideRight, width);
    }

private Q_SLOTS:
    /// More texts than are kept, all of the same length and in the same room.
    void everyTextIsItsOwn()
    {
        const QFont font(text("DejaVu Sans"), 9);
        for (int number = 1000; number < 3000; ++number) {
            const QString string = QString::number(number) + text(" and so on and so forth");
            const QString visible = shown(string, font, 100);
            QCOMPARE(visible, expected(string, font));
            QVERIFY(visible.startsWith(QString::number(number)) && visible != string);
        }
    }

    void everyRoomIsItsOwn()
    {
        const QString string = text("A label that is too long for its room");
        for (int width = 40; width < 200; ++width) {
            for (const int size : {8, 9, 12}) {
                const QFont font(text("DejaVu Sans"), size);
                const QString visible = shown(string, font, width);
                QCOMPARE(visible, expected(string, font));
            }
        }
    }
};

QTEST_MAIN(ElidedTextTest)
#include "ElidedTextTest.moc"
