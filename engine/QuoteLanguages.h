// The quote styles that a first start chooses by the user's language.
#pragma once

#include <cstdint>
#include <string_view>

namespace nerlo::engine {

class nrDefaultQuotesLanguage {
  public:
    static nrDefaultQuotesLanguage &sharedInstance();

    // The whole code decides, letter case included ("pt-BR"); any code not in the table sets 0, 0.
    void setDefaultQuotesForLanguage(std::string_view language);

    // Indices into the single and double quote style tables.
    std::int64_t getDefaultQuoteSingle() const { return defaultQuoteSingle; }
    std::int64_t getDefaultQuoteDouble() const { return defaultQuoteDouble; }

    // Whether the table has this very code.
    static bool knows(std::string_view language);

  private:
    std::int64_t defaultQuoteSingle = 0;
    std::int64_t defaultQuoteDouble = 0;
};

} // namespace nerlo::engine
