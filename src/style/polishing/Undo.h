#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace TARN {

/// What takes back what a widget was given, the last first.
class Undo
{
public:
    using Step = std::function<void()>;

    void add(Step step) { m_steps.push_back(std::move(step)); }
    void append(const Undo &later)
    {
        m_steps.insert(m_steps.end(), later.m_steps.begin(), later.m_steps.end());
    }
    bool isEmpty() const { return m_steps.empty(); }

    void run()
    {
        for (; !m_steps.empty(); m_steps.pop_back()) {
            m_steps.back()();
        }
    }

private:
    std::vector<Step> m_steps;
};

} // namespace TARN
