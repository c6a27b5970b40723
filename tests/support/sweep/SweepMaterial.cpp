#include "support/sweep/SweepMaterial.h"

#include <QtCore/QSet>

using namespace TARN::Gallery;

namespace {

constexpr int farAway = 1 << 24;

class UnknownOption : public QStyleOption
{
public:
    UnknownOption()
        : QStyleOption(1, SO_CustomBase + 1)
    {
    }
};

class UnknownComplexOption : public QStyleOptionComplex
{
public:
    UnknownComplexOption()
        : QStyleOptionComplex(1, SO_ComplexCustomBase + 1)
    {
        subControls = QStyle::SC_All;
    }
};

bool isComplex(const ElementOption &option)
{
    return qstyleoption_cast<const QStyleOptionComplex *>(option.get()) != nullptr;
}

} // namespace

SweepMaterial::SweepMaterial()
    : m_options{std::make_shared<QStyleOption>(), std::make_shared<QStyleOptionComplex>(),
                std::make_shared<UnknownOption>(), std::make_shared<UnknownComplexOption>()}
    , m_widgets{nullptr}
{
    QSet<int> types;
    QSet<QByteArray> classes;
    for (const ElementFamily &family : elementFamilies()) {
        for (const ElementSample &sample : family.samples) {
            for (const ElementState state : sample.states) {
                m_subjects.push_back(std::make_unique<ElementSubject>(sample, state));
            }
            const ElementOption option = m_subjects.back()->option();
            if (!types.contains(option->type)) {
                types.insert(option->type);
                m_options.push_back(option);
            }
            const QWidget *widget = m_subjects.back()->widget();
            if (!classes.contains(widget->metaObject()->className())) {
                classes.insert(widget->metaObject()->className());
                m_widgets.push_back(widget);
            }
        }
    }
}

std::vector<ElementSubject *> SweepMaterial::samplesOf(const ElementId &id) const
{
    std::vector<ElementSubject *> samples;
    for (const auto &subject : m_subjects) {
        const ElementId &other = subject->sample().id;
        if (other.table == id.table && other.element == id.element) {
            samples.push_back(subject.get());
        }
    }
    return samples;
}

std::vector<ElementOption> SweepMaterial::complexOptions() const
{
    std::vector<ElementOption> options;
    std::copy_if(m_options.begin(), m_options.end(), std::back_inserter(options), isComplex);
    return options;
}

const QVector<QRect> &SweepMaterial::rects()
{
    static const QVector<QRect> rects{
        QRect(0, 0, 100, 30),
        QRect(),
        QRect(20, 10, -7, -5),
        QRect(0, 0, 1, 1),
        QRect(5, 5, 0, 12),
        QRect(-farAway, -farAway, 2 * farAway, 2 * farAway),
        QRect(farAway, farAway, farAway, farAway),
    };
    return rects;
}

bool SweepMaterial::isHuge(const QRect &rect)
{
    return rect.width() >= farAway;
}
