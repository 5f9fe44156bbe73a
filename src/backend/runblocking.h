#pragma once

#include <QEventLoop>

#include <QCoroTask>

#include <exception>
#include <optional>

// Runs a coroutine to its end in a nested event loop and hands back its result or rethrows its
// error. For command-line tools and tests; the GUI awaits instead.
template<class T>
T runBlocking(QCoro::Task<T> task)
{
    QEventLoop loop;
    bool done = false;
    std::exception_ptr error;
    [[maybe_unused]] std::optional<std::conditional_t<std::is_void_v<T>, bool, T>> result;
    auto run = [&]() -> QCoro::Task<> {
        try {
            if constexpr (std::is_void_v<T>) {
                co_await std::move(task);
            } else {
                result.emplace(co_await std::move(task));
            }
        } catch (...) {
            error = std::current_exception();
        }
        done = true;
        loop.quit();
    };
    QCoro::Task<> running = run();
    if (!done) {
        loop.exec();
    }
    if (error) {
        std::rethrow_exception(error);
    }
    if constexpr (!std::is_void_v<T>) {
        return std::move(*result);
    }
}
