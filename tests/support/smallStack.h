#pragma once

#include <gtest/gtest.h>
#include <pthread.h>

#include <functional>

/// Runs `function` on a thread of its own with a stack of 256 KiB.
inline void runOnSmallStack(std::function<void()> function) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    auto const call = [](void* f) -> void* {
        (*static_cast<std::function<void()>*>(f))();
        return nullptr;
    };
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, call, &function), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}
