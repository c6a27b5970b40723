#include "catalogue/Elements.h"

#include <QtWidgets/QStyle>

#include <string_view>

namespace TARN::Catalogue {

namespace {

constexpr bool isPainted(std::string_view rule)
{
    return rule != "leftToBaseStyle";
}

constexpr bool isPainted(std::string_view rule, std::string_view completeRule)
{
    return isPainted(completeRule == "sameRule" ? rule : completeRule);
}

#define MOX_ELEMENT(element, rule, completeRule)                                                   \
    {#element, QStyle::element, isPainted(#rule), isPainted(#rule, #completeRule)},

constexpr StyleElement primitiveRows[] = {
#define MOX_PRIMITIVE(element, rule, completeRule) MOX_ELEMENT(element, rule, completeRule)
#include "catalogue/Elements.def"
};

constexpr StyleElement controlRows[] = {
#define MOX_CONTROL(element, rule, completeRule) MOX_ELEMENT(element, rule, completeRule)
#include "catalogue/Elements.def"
};

constexpr StyleElement complexControlRows[] = {
#define MOX_COMPLEX_CONTROL(element, rule, completeRule) MOX_ELEMENT(element, rule, completeRule)
#include "catalogue/Elements.def"
};

#undef MOX_ELEMENT

template <std::size_t Size>
constexpr bool standAtTheirIndices(const StyleElement (&rows)[Size])
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (rows[i].element != static_cast<int>(i)) {
            return false;
        }
    }
    return true;
}

static_assert(standAtTheirIndices(primitiveRows));
static_assert(standAtTheirIndices(controlRows));
static_assert(standAtTheirIndices(complexControlRows));

template <std::size_t Size>
QVector<StyleElement> asVector(const StyleElement (&rows)[Size])
{
    return QVector<StyleElement>(std::begin(rows), std::end(rows));
}

} // namespace

const QVector<StyleElement> &primitives()
{
    static const QVector<StyleElement> elements = asVector(primitiveRows);
    return elements;
}

const QVector<StyleElement> &controls()
{
    static const QVector<StyleElement> elements = asVector(controlRows);
    return elements;
}

const QVector<StyleElement> &complexControls()
{
    static const QVector<StyleElement> elements = asVector(complexControlRows);
    return elements;
}

} // namespace TARN::Catalogue
