// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StoredText.h"

#include <QByteArray>
#include <QString>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace vellumry {

/// Which value of a type stands for "there is none", and how one that is there is kept apart from it.
template <typename T>
struct Absence;

template <>
struct Absence<double> {
    static double value() { return std::numeric_limits<double>::quiet_NaN(); }
    static bool is(double number) { return std::isnan(number); }
    static double present(double number) { return number; }
};

template <>
struct Absence<QString> {
    static QString value() { return {}; }
    static bool is(const QString& string) { return string.isNull(); }
    static QString present(QString string) { return string.isNull() ? QStringLiteral("") : std::move(string); }
};

template <>
struct Absence<QByteArray> {
    static QByteArray value() { return {}; }
    static bool is(const QByteArray& bytes) { return bytes.isNull(); }
    static QByteArray present(QByteArray bytes) { return bytes.isNull() ? QByteArrayLiteral("") : std::move(bytes); }
};

template <>
struct Absence<StoredText> {
    static StoredText value() { return {}; }
    static bool is(const StoredText& text) { return text.utf8().isNull(); }
    static StoredText present(StoredText text) {
        return is(text) ? StoredText::fromUtf8(QByteArrayLiteral("")) : std::move(text);
    }
};

/// What std::optional is, without the eight bytes that it takes for its mark: thousands of clips have five of these. An
/// empty text that is there stays one; a number that is none (NaN) is not there. A value; any thread.
template <typename T>
class Sparse {
public:
    Sparse() = default;
    // Not explicit: used as std::optional is, and in its place.
    Sparse(std::nullopt_t) {}
    template <typename U>
        requires std::is_convertible_v<U, T>
    Sparse(U&& value)
        : m_value(Absence<T>::present(std::forward<U>(value))) {}
    Sparse(std::optional<T> value)
        : m_value(value ? Absence<T>::present(*std::move(value)) : Absence<T>::value()) {}
    operator std::optional<T>() const { return has_value() ? std::optional<T>(m_value) : std::nullopt; }

    [[nodiscard]] bool has_value() const { return !Absence<T>::is(m_value); }
    explicit operator bool() const { return has_value(); }
    /// Only where there is one.
    [[nodiscard]] const T& operator*() const { return m_value; }
    [[nodiscard]] const T* operator->() const { return &m_value; }
    [[nodiscard]] T value_or(T other) const { return has_value() ? m_value : std::move(other); }
    void reset() { m_value = Absence<T>::value(); }

    friend bool operator==(const Sparse& one, const Sparse& other) {
        return one.has_value() == other.has_value() && (!one.has_value() || one.m_value == other.m_value);
    }
    friend bool operator==(const Sparse& one, std::nullopt_t) { return !one.has_value(); }
    friend bool operator==(const Sparse& one, const std::optional<T>& other) { return one == Sparse(other); }
    template <typename U>
        requires std::is_convertible_v<const U&, T>
    friend bool operator==(const Sparse& one, const U& value) {
        return one.has_value() && one.m_value == T(value);
    }

private:
    T m_value = Absence<T>::value();
};

} // namespace vellumry
