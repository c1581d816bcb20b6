// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace vellumry {

/// Owns a file descriptor; -1 for none.
class Descriptor {
public:
    explicit Descriptor(int value = -1)
        : m_value(value) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept
        : m_value(std::exchange(other.m_value, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_value, other.m_value);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int get() const { return m_value; }
    [[nodiscard]] bool isOpen() const { return m_value >= 0; }
    void reset() {
        if (m_value >= 0)
            close(std::exchange(m_value, -1));
    }

private:
    int m_value;
};

} // namespace vellumry
