#pragma once

#include <QtCore/QRect>
#include <QtCore/QVector>

#include <memory>
#include <states/ElementSubject.h>
#include <vector>

/// What the style is asked with: everything that may reach it, and more.
class SweepMaterial
{
public:
    SweepMaterial();

    /// Returns the samples of the element \a id, each in all its states.
    std::vector<TARN::Gallery::ElementSubject *>
    samplesOf(const TARN::Gallery::ElementId &id) const;

    /// Returns one option of each type that there is, among them plain ones and one of a type that
    /// nobody knows.
    const std::vector<TARN::Gallery::ElementOption> &options() const { return m_options; }
    /// Returns those that describe controls with sub-controls.
    std::vector<TARN::Gallery::ElementOption> complexOptions() const;

    /// Returns widgets of many classes, and null.
    const std::vector<const QWidget *> &widgets() const { return m_widgets; }

    /// Returns rectangles that are ordinary, empty, inside out, tiny and huge.
    static const QVector<QRect> &rects();
    static bool isHuge(const QRect &rect);

private:
    std::vector<std::unique_ptr<TARN::Gallery::ElementSubject>> m_subjects;
    std::vector<TARN::Gallery::ElementOption> m_options;
    std::vector<const QWidget *> m_widgets;
};
