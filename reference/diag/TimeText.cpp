#include "zqbchwcx/reference/diag/TimeText.h"

#include <array>
#include <charconv>

namespace zqbchwcx::reference {
namespace {

struct Field {
    std::size_t width;
    char end; ///< the character behind it
};
/// Year, month, day, hours, minutes, seconds, milliseconds.
constexpr std::array<Field, 7> Fields{{{4, '-'}, {2, '-'}, {2, 'T'}, {2, ':'}, {2, ':'}, {2, '.'}, {3, 'Z'}}};

} // namespace

std::string TimeText(Time time)
{
    using namespace std::chrono;
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    const std::array<long, Fields.size()> numbers{int{date.year()},
                                                  static_cast<long>(unsigned{date.month()}),
                                                  static_cast<long>(unsigned{date.day()}),
                                                  clock.hours().count(),
                                                  clock.minutes().count(),
                                                  clock.seconds().count(),
                                                  clock.subseconds().count()};
    std::string text;
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        const std::string digits = std::to_string(numbers[i]);
        if (digits.size() < Fields[i].width) text.append(Fields[i].width - digits.size(), '0');
        text.append(digits).append(1, Fields[i].end);
    }
    return text;
}

std::optional<Time> ParseTime(std::string_view text)
{
    using namespace std::chrono;
    std::array<unsigned, Fields.size()> numbers{};
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        const auto& [width, end] = Fields[i];
        if (text.size() <= width || text[width] != end) return {};
        const auto [rest, error] = std::from_chars(text.data(), text.data() + width, numbers[i]);
        if (error != std::errc() || rest != text.data() + width) return {};
        text.remove_prefix(width + 1);
    }
    const auto [years, months, days, hour, minute, second, fraction] = numbers;
    const year_month_day date{year(static_cast<int>(years)), month(months), day(days)};
    if (!text.empty() || !date.ok() || hour > 23 || minute > 59 || second > 59) return {};
    return sys_days(date) + hours(hour) + minutes(minute) + seconds(second) + milliseconds(fraction);
}

} // namespace zqbchwcx::reference
