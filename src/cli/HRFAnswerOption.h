#pragma once

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// The words that an option takes, in the order in which they are told, and what they mean.
template <class Answer> using HRFAnswers = std::vector<std::pair<std::string, Answer>>;

/// Adds an option that takes one of some words.
///
/// @param answers must live as long as the program reads its command line
/// @param take is called with what the given word means
template <class Answer, class Take>
void HRFAddAnswerOption(CLI::App &app, const std::string &name, const HRFAnswers<Answer> &answers,
                        Take take, const std::string &help)
{
    std::string words;
    for (const auto &[word, answer] : answers)
        words += (words.empty() ? "" : "|") + word;
    const auto takeWord = [&answers, take](const std::string &word) {
        take(std::ranges::find(answers, word, &std::pair<std::string, Answer>::first)->second);
    };
    app.add_option_function<std::string>(name, takeWord, help)
        ->type_name(words)
        ->check(CLI::IsMember(answers).description(""));
}
