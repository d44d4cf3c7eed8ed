#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <limits>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

/**
 * Stands in for RapidCheck where there is no build of it for Windows, so that the tests with random
 * cases run there from the same sources. Draws cases by the same names and of growing size.
 *
 * Not supported: making a case that failed smaller (it is told by its seed instead, which
 * `RC_PARAMS="seed=..."` draws again), statistics of cases, states, and every generator that no
 * test of ours uses.
 */
namespace rc {

/** The size at which integers reach their whole range. */
constexpr int kNominalSize = 100;

namespace detail {

struct Draw
{
    std::mt19937_64 random;
    int size = kNominalSize;
};

/** What generators draw from while a property runs; null outside of one. */
inline Draw*& currentDraw()
{
    static thread_local Draw* draw = nullptr;
    return draw;
}

class CaseFailed : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

inline void require(bool held, const char* condition, const char* file, int line)
{
    if (!held)
        throw CaseFailed(std::string(file) + ':' + std::to_string(line) + ": " + condition);
}

/** The number that `RC_PARAMS` gives the name, as in "seed=7 max_success=100". */
inline std::optional<std::uint64_t> parameter(const std::string& name)
{
    const char* const text = std::getenv("RC_PARAMS");
    const std::string all = std::string(" ") + (text ? text : "");
    const std::size_t at = all.find(' ' + name + '=');
    if (at == std::string::npos)
        return {};
    return std::strtoull(all.c_str() + at + name.size() + 2, nullptr, 10);
}

} // namespace detail

/** Draws values; `*generator` inside a property draws one. */
template <typename T>
class Gen
{
public:
    using Function = std::function<T(detail::Draw&)>;

    explicit Gen(Function function)
        : m_function(std::move(function))
    {}

    T operator*() const
    {
        if (!detail::currentDraw())
            throw std::logic_error("A generator is drawn from outside of a property");
        return m_function(*detail::currentDraw());
    }

    T draw(detail::Draw& from) const { return m_function(from); }

private:
    Function m_function;
};

namespace gen {

/** From `min` on, below `max`; small cases stay near `min`. */
template <typename T>
Gen<T> inRange(T min, T max)
{
    return Gen<T>([min, max](detail::Draw& from) {
        if (!(min < max))
            throw std::logic_error("An empty range to draw from");
        const auto range = static_cast<std::uint64_t>(max) - static_cast<std::uint64_t>(min) - 1;
        const auto size = static_cast<std::uint64_t>(std::min(from.size, kNominalSize));
        const auto scaled = range / kNominalSize * size +
                            (range % kNominalSize * size + kNominalSize - 1) / kNominalSize;
        const auto offset = std::uniform_int_distribution<std::uint64_t>(0, scaled)(from.random);
        return static_cast<T>(static_cast<std::uint64_t>(min) + offset);
    });
}

template <typename T, typename... More>
Gen<T> element(T first, More... more)
{
    const std::vector<T> all{std::move(first), T(std::move(more))...};
    return Gen<T>([all](detail::Draw& from) {
        return all[std::uniform_int_distribution<std::size_t>(0, all.size() - 1)(from.random)];
    });
}

template <typename T, typename Mapper>
auto map(Gen<T> source, Mapper mapper)
{
    using Result = std::decay_t<std::invoke_result_t<Mapper, T>>;
    return Gen<Result>(
        [source, mapper](detail::Draw& from) { return Result(mapper(source.draw(from))); });
}

template <typename T, typename Predicate>
Gen<T> suchThat(Gen<T> source, Predicate wanted)
{
    return Gen<T>([source, wanted](detail::Draw& from) {
        detail::Draw growing{from.random, from.size};
        for (int tries = 0; tries < 1000; ++tries) {
            T value = source.draw(growing);
            growing.size = std::min(growing.size + 1, kNominalSize);
            if (wanted(value)) {
                from.random = growing.random;
                return value;
            }
        }
        throw std::logic_error("No wanted value among 1000 that were drawn");
    });
}

template <typename T>
Gen<T> nonEmpty(Gen<T> source)
{
    return suchThat(std::move(source), [](const T& value) { return !value.empty(); });
}

template <typename T>
Gen<T> resize(int size, Gen<T> source)
{
    return Gen<T>([size, source](detail::Draw& from) {
        const int before = std::exchange(from.size, size);
        T value = source.draw(from);
        from.size = before;
        return value;
    });
}

/** Nothing is made smaller here at all. */
template <typename T>
Gen<T> noShrink(Gen<T> source)
{
    return source;
}

template <typename Container, typename T>
Gen<Container> container(std::size_t count, Gen<T> source)
{
    return Gen<Container>([count, source](detail::Draw& from) {
        Container all;
        for (std::size_t i = 0; i < count; ++i)
            all.insert(all.end(), source.draw(from));
        return all;
    });
}

/** As many as the case's size at the most. */
template <typename Container, typename T>
Gen<Container> container(Gen<T> source)
{
    return Gen<Container>([source](detail::Draw& from) {
        const auto most = static_cast<std::size_t>(from.size);
        const auto count = std::uniform_int_distribution<std::size_t>(0, most)(from.random);
        return container<Container>(count, source).draw(from);
    });
}

template <typename... Ts>
Gen<std::tuple<Ts...>> tuple(Gen<Ts>... sources)
{
    return Gen<std::tuple<Ts...>>([sources...](detail::Draw& from) {
        // Braces draw from left to right, which arguments of a call would not.
        return std::tuple<Ts...>{sources.draw(from)...};
    });
}

template <typename Object, typename Member, typename T>
auto set(Member Object::*member, Gen<T> source)
{
    return [member, source](Object& object, detail::Draw& from) {
        object.*member = source.draw(from);
    };
}

template <typename Object, typename... Setters>
Gen<Object> build(Setters... setters)
{
    return Gen<Object>([setters...](detail::Draw& from) {
        Object object{};
        (setters(object, from), ...);
        return object;
    });
}

template <typename T>
Gen<T> arbitrary()
{
    if constexpr (std::is_same_v<T, bool>) {
        return Gen<T>([](detail::Draw& from) { return (from.random() & 1) != 0; });
    } else if constexpr (std::is_same_v<T, std::string>) {
        return container<std::string>(resize(kNominalSize, arbitrary<char>()));
    } else {
        static_assert(std::is_integral_v<T>, "No generator for this type here");
        return Gen<T>([](detail::Draw& from) {
            const int bits = std::min(from.size, kNominalSize) *
                             std::numeric_limits<std::uint64_t>::digits / kNominalSize;
            const std::uint64_t drawn = from.random();
            return static_cast<T>(bits == 0 ? 0 : drawn >> (64 - std::min(bits, 64)));
        });
    }
}

} // namespace gen

namespace detail {

template <typename Property>
struct Arguments : Arguments<decltype(&Property::operator())>
{};

template <typename Property, typename Result, typename... Ts>
struct Arguments<Result (Property::*)(Ts...) const>
{
    static auto generator() { return gen::tuple(gen::arbitrary<std::decay_t<Ts>>()...); }
};

/** Runs one case; what speaks against the property, else nothing. */
template <typename Property>
std::optional<std::string> objectionOfCase(const Property& property, Draw& draw)
{
    try {
        const auto arguments = Arguments<Property>::generator().draw(draw);
        if constexpr (std::is_same_v<decltype(std::apply(property, arguments)), bool>)
            require(std::apply(property, arguments), "returned true", "the property", 0);
        else
            std::apply(property, arguments);
        return {};
    } catch (const std::exception& objection) {
        return objection.what();
    }
}

/** Cases of one run follow from its seed and their number, so that each can be had again. */
inline Draw drawOfCase(std::uint64_t seed, int number, int count)
{
    Draw draw;
    draw.random.seed(seed + static_cast<std::uint64_t>(number));
    draw.size = count > 1 ? static_cast<int>(std::int64_t{number} * kNominalSize / (count - 1))
                          : kNominalSize;
    return draw;
}

} // namespace detail

/** Whether the property holds for all cases that were tried; the first that fails is told. */
template <typename Property>
bool check(const std::string& name, const Property& property)
{
    const int count = static_cast<int>(detail::parameter("max_success").value_or(100));
    std::random_device entropy;
    const std::uint64_t seed = detail::parameter("seed").value_or(entropy());
    for (int number = 0; number < count; ++number) {
        detail::Draw draw = detail::drawOfCase(seed, number, count);
        detail::Draw* const before = std::exchange(detail::currentDraw(), &draw);
        const auto objection = detail::objectionOfCase(property, draw);
        detail::currentDraw() = before;
        if (objection) {
            std::cerr << name << ": false in case " << number + 1 << " of seed " << seed << ": "
                      << *objection << std::endl;
            return false;
        }
    }
    return true;
}

template <typename Property>
bool check(const Property& property)
{
    return check("A property", property);
}

} // namespace rc

#define RC_ASSERT(...) ::rc::detail::require((__VA_ARGS__), #__VA_ARGS__, __FILE__, __LINE__)
