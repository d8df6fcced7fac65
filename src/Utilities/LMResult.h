// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

/// What an operation that can fail answers: a value, or an error that says why there is none.
///
/// Reading value() of a failure, or error() of a success, is a programming error.
template <class T, class E = QString>
class [[nodiscard]] LMResult {
public:
    static LMResult success(T value) {
        return LMResult(Storage(std::in_place_index<0>, std::move(value)));
    }
    static LMResult failure(E error) {
        return LMResult(Storage(std::in_place_index<1>, std::move(error)));
    }

    bool isSuccess() const { return m_storage.index() == 0; }
    explicit operator bool() const { return isSuccess(); }

    const T& value() const& {
        assert(isSuccess());
        return *std::get_if<0>(&m_storage);
    }
    T& value() & {
        assert(isSuccess());
        return *std::get_if<0>(&m_storage);
    }
    T&& value() && {
        assert(isSuccess());
        return std::move(*std::get_if<0>(&m_storage));
    }
    T valueOr(T fallback) const { return isSuccess() ? value() : std::move(fallback); }

    const E& error() const {
        assert(!isSuccess());
        return *std::get_if<1>(&m_storage);
    }

    const T& operator*() const& { return value(); }
    T& operator*() & { return value(); }
    T&& operator*() && { return std::move(*this).value(); }
    const T* operator->() const { return &value(); }
    T* operator->() { return &value(); }

private:
    using Storage = std::variant<T, E>;
    explicit LMResult(Storage storage) : m_storage(std::move(storage)) {}

    Storage m_storage;
};

/// What an operation answers that can fail and has no value to give.
template <class E>
class [[nodiscard]] LMResult<void, E> {
public:
    static LMResult success() { return LMResult(std::nullopt); }
    static LMResult failure(E error) { return LMResult(std::move(error)); }

    bool isSuccess() const { return !m_error.has_value(); }
    explicit operator bool() const { return isSuccess(); }

    const E& error() const {
        assert(m_error.has_value());
        return *m_error;
    }

private:
    explicit LMResult(std::optional<E> error) : m_error(std::move(error)) {}

    std::optional<E> m_error;
};
