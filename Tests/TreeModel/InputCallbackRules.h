#pragma once

#include "Tests/TreeModel/ModelFixtures.h"

#include <QtTest/QtTest>

#include <memory>
#include <string>

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

template <typename Provider>
void laterCallbackReplacesTheEarlierOne(Provider&& provider)
{
    const auto held = std::make_shared<FixedModelProvider>();
    const auto later = std::make_shared<FixedModelProvider>();
    std::string log;
    provider.setInputModelProvider(held);
    provider.registerUpdateCallback([&log] { log += "first "; });
    provider.registerUpdateCallback([&log] { log += "second "; });
    QCOMPARE(held->registrations, 2);
    held->callback();
    QCOMPARE(log, std::string("second "));
    provider.setInputModelProvider(later);
    later->callback();
    QCOMPARE(log, std::string("second second "));
}

template <typename Provider>
void replacedInputIsToldNothing(Provider&& provider)
{
    const auto former = std::make_shared<FixedModelProvider>();
    provider.setInputModelProvider(former);
    provider.registerUpdateCallback([] {});
    provider.setInputModelProvider(std::make_shared<FixedModelProvider>());
    QCOMPARE(former->registrations, 1);
    QVERIFY(former->callback);
    QCOMPARE(former.use_count(), 1L);
}

template <typename Provider>
void inputMayBeTakenAway(Provider&& provider)
{
    const auto former = std::make_shared<FixedModelProvider>(Items{makeItem(1)});
    provider.registerUpdateCallback([] {});
    provider.setInputModelProvider(former);
    provider.setInputModelProvider(nullptr);
    const auto root = provider.provideModel();
    QVERIFY(!root || root->empty());
    QCOMPARE(former->registrations, 1);
    QCOMPARE(former.use_count(), 1L);
}

} // namespace Zorvane::Testing::InputCallbackRules
