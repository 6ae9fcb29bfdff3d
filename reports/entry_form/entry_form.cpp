// reports/entry_form/entry_form.cpp - puts a field into the page's template, as data.
#include "reports/entry_form/entry_form.h"

#include "base/windows1252.h"
#include "reports/entry_form/form_template.h"
#include "reports/web/web_page.h"

#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <string_view>
#include <vector>

namespace tallyhoop {

namespace {

std::string jsonOf(std::string_view text)
{
    std::string json = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        json += isEscapedInPage(byte) ? fmt::format("\\u{:04x}", byte) : toUtf8({&character, 1});
    }
    return json + "\"";
}

std::string jsonOf(std::int16_t number) { return fmt::format("{}", number); }

template <class Values>
std::string jsonListOf(const Values& values)
{
    std::string json;
    for (const auto& value : values)
        json += (json.empty() ? "" : ",") + jsonOf(value);
    return "[" + json + "]";
}

/// The seeds of a region's rows, which are those of every region.
std::vector<std::int16_t> seedsOfRegion(const Field& field)
{
    const ByTeamRow<std::int16_t> seeds = seedNumbers(field);
    const auto region = seeds.from(TeamRow{0}, kRowsPerRegion);
    return {region.begin(), region.end()};
}

std::string jsonOf(const Field& field, const EntryFormOptions& options)
{
    return fmt::format(R"({{"title":{},"regions":{},"points":{},"seeds":{},"seedNumbers":{},"teams":{},)"
                       R"("comments":{},"organiser":{}}})",
                       jsonOf(field.title), jsonListOf(field.regionTitles), jsonListOf(field.payoffs.texts()),
                       jsonListOf(field.seeds), jsonListOf(seedsOfRegion(field)), jsonListOf(field.teams.values),
                       jsonListOf(std::array{field.comment1, field.comment2}), jsonOf(options.organiser));
}

} // namespace

std::string entryFormPage(const Field& field, const EntryFormOptions& options)
{
    // The title's place is the first: what a field calls "@TITLE@" follows it.
    const std::string titled = filled(kEntryFormTemplate, "@FIELD@", jsonOf(field, options));
    return filled(titled, "@TITLE@", htmlOf(field.title));
}

} // namespace tallyhoop
