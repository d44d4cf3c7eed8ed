#pragma once

#include "Tests/TreeModel/ModelFixtures.h"

#include <QtTest/QtTest>

#include <memory>

/** How a provider hands the update callback on to its input: rules that several of them share. */
namespace Zorvane::Testing::InputCallbackRules {

template <typename Provider>
void callbackReachesTheInput(Provider&& provider)
{
    const auto input = std::make_shared<FixedModelProvider>();
    int calls = 0;
    provider.setInputModelProvider(input);
    QCOMPARE(input->registrations, 0);
    provider.registerUpdateCallback([&calls] { ++calls; });
    QCOMPARE(input->registrations, 1);
    input->callback();
    QCOMPARE(calls, 1);
}

template <typename Provider>
void callbackReachesALaterInput(Provider&& provider)
{
    const auto input = std::make_shared<FixedModelProvider>();
    int calls = 0;
    provider.registerUpdateCallback([&calls] { ++calls; });
    provider.setInputModelProvider(input);
    QCOMPARE(input->registrations, 1);
    input->callback();
    QCOMPARE(calls, 1);
}

template <typename Provider>
void emptyCallbackReachesTheInput(Provider&& provider)
{
    const auto input = std::make_shared<FixedModelProvider>();
    provider.setInputModelProvider(input);
    provider.registerUpdateCallback([] {});
    provider.registerUpdateCallback({});
    QCOMPARE(input->registrations, 2);
    QVERIFY(!input->callback);
}

template <typename Provider>
void emptyCallbackDoesNotReachALaterInput(Provider&& provider)
{
    const auto input = std::make_shared<FixedModelProvider>();
    provider.registerUpdateCallback({});
    provider.setInputModelProvider(input);
    QCOMPARE(input->registrations, 0);
}

} // namespace Zorvane::Testing::InputCallbackRules
