// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_ANNOUNCED_H
#define PROFILES_ANNOUNCED_H

#include <functional>
#include <utility>

namespace Dezimo {

/**
 * A value of a model that announces itself: setting it to what it is already does nothing, and
 * every real change emits the signal that the model has for it, once and after the change.
 */
template <typename Value>
class Announced final
{
public:
    template <typename Model>
    Announced(Model *model, void (Model::*changed)(), Value initial = {})
        : m_value(std::move(initial)),
          m_announce([model, changed] { (model->*changed)(); })
    {}
    Announced(const Announced &) = delete;
    Announced &operator=(const Announced &) = delete;

    const Value &get() const { return m_value; }
    void set(const Value &value)
    {
        if (m_value == value)
            return;
        m_value = value;
        m_announce();
    }

private:
    Value m_value;
    const std::function<void()> m_announce;
};

} // namespace Dezimo

#endif
