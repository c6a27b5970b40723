#include <style/BaseStyle.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <states/ElementSubject.h>
#include <support/Text.h>

using namespace TARN::Gallery;

namespace {

const ElementTable tables[] = {ElementTable::Primitives, ElementTable::Controls,
                               ElementTable::ComplexControls};

QSet<QString> namesOfSamples()
{
    QSet<QString> names;
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            names.insert(elementName(sample.id));
        }
    }
    return names;
}

QSet<QString> namesOfElements()
{
    QSet<QString> names;
    for (const ElementTable table : tables) {
        for (const TARN::StyleElement &row : rowsOf(table)) {
            names.insert(text(row.name));
        }
    }
    return names;
}

QImage picture(ElementSubject &subject, Qt::LayoutDirection direction, bool isEnabled)
{
    QImage image(subject.sample().size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    subject.paint(*QApplication::style(), painter, direction, isEnabled);
    return image;
}

const ElementSample &sampleOf(const QStyle::ControlElement element)
{
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            if (sample.id.table == ElementTable::Controls && sample.id.element == int(element)) {
                return sample;
            }
        }
    }
    qFatal("There is no sample.");
}

} // namespace

/// The samples by which the elements of the style's tables are shown and tested.
class ElementSamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyElementHasASample();
    void titlesAreUnique();
    void statesAreUnique();
    void subjectsAreInTheirStates();
    void disabledPartsOfPagesArePainted();
    void widgetsGoWithTheirSubjects();
    void stateNamesAreReadable();
};

void ElementSamplesTest::everyElementHasASample()
{
    QSet<QString> missing = namesOfElements();
    missing.subtract(namesOfSamples());
    QStringList names = missing.values();
    names.sort();
    QCOMPARE(names.join(u' '), QString());
}

void ElementSamplesTest::titlesAreUnique()
{
    const QRegularExpression words(text("^[a-z0-9]+(-[a-z0-9]+)*$"));
    QSet<QString> ids;
    for (const ElementFamily &family : elementFamilies()) {
        QVERIFY2(words.match(family.id).hasMatch(), family.id.latin1());
        QVERIFY2(!ids.contains(family.id), family.id.latin1());
        ids.insert(family.id);
        QSet<QString> titles;
        for (const ElementSample &sample : family.samples) {
            QVERIFY2(!titles.contains(text(sample.title)), sample.title);
            titles.insert(text(sample.title));
        }
    }
    QVERIFY(!ids.isEmpty());
}

void ElementSamplesTest::statesAreUnique()
{
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            QVERIFY2(sample.states.contains(ElementState()) ||
                         valueOf(sample.states.value(0)) == sample.states.value(0),
                     sample.title);
            for (const ElementState state : sample.states) {
                QVERIFY2(sample.states.count(state) == 1, sample.title);
            }
        }
    }
}

void ElementSamplesTest::subjectsAreInTheirStates()
{
    using Condition = ElementCondition;
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            for (const ElementState state : sample.states) {
                const ElementSubject subject(sample, state);
                const ElementOption option = subject.option();
                const auto shows = [&](Condition condition, QStyle::StateFlag flag) {
                    return !state.testFlag(condition) || option->state.testFlag(flag);
                };
                QVERIFY2(option->state.testFlag(QStyle::State_Enabled) !=
                             state.testFlag(Condition::Disabled),
                         sample.title);
                QVERIFY2(shows(Condition::KeyboardFocus, QStyle::State_KeyboardFocusChange),
                         sample.title);
                QVERIFY2(shows(Condition::Hover, QStyle::State_MouseOver), sample.title);
                QVERIFY2(shows(Condition::Pressed, QStyle::State_Sunken), sample.title);
                QVERIFY2(shows(Condition::Checked, QStyle::State_On), sample.title);
                QVERIFY2(shows(Condition::Selected, QStyle::State_Selected), sample.title);
                QVERIFY2(option->rect == QRect(QPoint(), sample.size), sample.title);
                QVERIFY2(!subject.widget()->isVisible(), sample.title);
            }
        }
    }
}

/// What stands on a disabled page is painted as what is disabled by itself.
void ElementSamplesTest::disabledPartsOfPagesArePainted()
{
    QApplication::setStyle(new TARN::BaseStyle);
    const ElementSample &sample = sampleOf(QStyle::CE_PushButton);
    ElementSubject resting(sample, ElementState());
    ElementSubject disabled(sample, ElementCondition::Disabled);
    const QImage enabledPicture = picture(resting, Qt::LeftToRight, true);
    QCOMPARE(picture(resting, Qt::LeftToRight, false), picture(disabled, Qt::LeftToRight, true));
    QVERIFY(picture(resting, Qt::LeftToRight, true) == enabledPicture);
    QVERIFY(picture(disabled, Qt::LeftToRight, true) != enabledPicture);
    const ElementSample &checkBox = sampleOf(QStyle::CE_CheckBox);
    ElementSubject box(checkBox, ElementState());
    QVERIFY(picture(box, Qt::RightToLeft, true) != picture(box, Qt::LeftToRight, true));
}

void ElementSamplesTest::widgetsGoWithTheirSubjects()
{
    const int before = QApplication::allWidgets().size();
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            const ElementSubject subject(sample, ElementState());
            QVERIFY(QApplication::allWidgets().contains(subject.widget()));
        }
    }
    QCOMPARE(QApplication::allWidgets().size(), before);
}

void ElementSamplesTest::stateNamesAreReadable()
{
    using Condition = ElementCondition;
    QCOMPARE(stateName(ElementState()), text("At rest"));
    QCOMPARE(stateName(Condition::Hover | ElementState(Condition::Checked)),
             text("Checked, hover"));
    QCOMPARE(stateName(Condition::ReadOnly), text("Read-only"));
    QCOMPARE(valueOf(Condition::Hover | ElementState(Condition::Checked)),
             ElementState(Condition::Checked));
    QCOMPARE(interactionOf(Condition::Hover | ElementState(Condition::Checked)),
             ElementState(Condition::Hover));
}

QTEST_MAIN(ElementSamplesTest)
#include "ElementSamplesTest.moc"
