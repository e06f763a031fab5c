// The expansion stage over 100,000 keywords of three parameters each, as a
// parser leaves them: names folded but often abbreviated, values as written
// (mixed case, some without `=value`), no data lines. This is the part of the
// stage that every keyword of a deck pays, whatever the size of its mesh.
//
// ExpandKeywordList walks the list as the pipeline does (dispatch, schema
// row, enumerations); ExpandParametersOnly calls ExpandParameters on the same
// keywords with their words, to separate the matching from the dispatch.

#include <benchmark/benchmark.h>

#include <string>

#include "expansion/inp_KeywordExpansionVisitor.h"
#include "expansion/inp_Schema.h"

namespace {

constexpr int kKeywords = 100000;

struct Written {
    char const* name;
    char const* value;  // null: written without a value
};

inp_Keyword keywordOf(inp_KeywordEnm key, Written const (&parameters)[3]) {
    inp_Keyword keyword(key, "deck.inp");
    for (Written const& parameter : parameters)
        keyword.SetParameter(parameter.name, parameter.value ? inp_Item(cow_String(parameter.value))
                                                             : inp_Item(true));
    return keyword;
}

// Names numbered like those of a generated model, so that values differ.
cow_List<inp_Keyword> mixedKeywords(int count) {
    cow_List<inp_Keyword> keywords;
    keywords.Reserve(count);
    for (int i = 0; i < count; ++i) {
        std::string const set = "Set-" + std::to_string(i);
        switch (i % 4) {
            case 0:
                keywords.Append(
                    keywordOf(inp_kw_Elset,
                              {{"elset", set.c_str()}, {"gen", nullptr}, {"internal", nullptr}}));
                break;
            case 1:
                keywords.Append(
                    keywordOf(inp_kw_ShellSection,
                              {{"elset", set.c_str()}, {"mat", "Steel-1"}, {"offset", "SPOS"}}));
                break;
            case 2:
                keywords.Append(keywordOf(
                    inp_kw_Boundary, {{"op", "new"}, {"amplitude", "Amp-1"}, {"type", "disp"}}));
                break;
            default:
                keywords.Append(keywordOf(
                    inp_kw_Nset,
                    {{"nset", set.c_str()}, {"instance", "Part-1-1"}, {"unsorted", nullptr}}));
        }
    }
    return keywords;
}

void ExpandKeywordList(benchmark::State& state) {
    cow_List<inp_Keyword> const written = mixedKeywords(kKeywords);
    for (auto _ : state) {
        cow_List<inp_Keyword> keywords = written;  // each pass starts from the parser's form
        inp_KeywordExpansionVisitor visitor;
        visitor.VisitList(keywords);
        benchmark::DoNotOptimize(visitor.GetErrorList().Length());
        if (visitor.IsError()) state.SkipWithError(visitor.GetErrorList()[0].CStr());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kKeywords);
}
BENCHMARK(ExpandKeywordList)->Unit(benchmark::kMillisecond);

void ExpandParametersOnly(benchmark::State& state) {
    cow_List<inp_Keyword> const written = mixedKeywords(kKeywords);
    for (auto _ : state) {
        cow_List<inp_Keyword> keywords = written;
        inp_KeywordExpansionVisitor visitor;
        for (int i = 0; i < kKeywords; ++i) {
            inp_Keyword& keyword = keywords.Get(i);
            inp_SchemaRow const* row = inp_Schema::Find(keyword.Keyword());
            visitor.ExpandParameters(keyword, row ? row->parameters : nullptr);
        }
        benchmark::DoNotOptimize(visitor.GetErrorList().Length());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kKeywords);
}
BENCHMARK(ExpandParametersOnly)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
