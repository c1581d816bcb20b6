// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ContentDetection.h"

#include "foundation/Text.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <vector>

namespace vellumry {

namespace {

constexpr qsizetype longestToken = 512;

/// The shapes in which services give out their tokens, each over the whole text. Published prefixes, no guesses.
constexpr std::array<QStringView, 19> secretPatterns{
    uR"(^sk-(ant-)?[A-Za-z0-9_\-]{20,}$)",                                     // AI services
    uR"(^gh[pousr]_[A-Za-z0-9]{36,}$)",                                        // GitHub
    uR"(^github_pat_[A-Za-z0-9_]{40,}$)",                                      // GitHub, fine-grained
    uR"(^glpat-[A-Za-z0-9_\-]{20,}$)",                                         // GitLab
    uR"(^AKIA[0-9A-Z]{16}$)",                                                  // AWS
    uR"(^xox[abprse]-[A-Za-z0-9\-]{10,}$)",                                    // Slack
    uR"(^(sk|rk)_(live|test)_[A-Za-z0-9]{20,}$)",                              // Stripe
    uR"(^whsec_[A-Za-z0-9+/=]{20,}$)",                                         // webhook signing
    uR"(^AIza[0-9A-Za-z_\-]{35}$)",                                            // Google API
    uR"(^GOCSPX-[A-Za-z0-9_\-]{20,}$)",                                        // Google OAuth
    uR"(^npm_[A-Za-z0-9]{36}$)",                                               // npm
    uR"(^pypi-[A-Za-z0-9_\-]{50,}$)",                                          // PyPI
    uR"(^hf_[A-Za-z0-9]{30,}$)",                                               // Hugging Face
    uR"(^polar_[a-z]{2,4}_[A-Za-z0-9]{20,}$)",                                 // a billing platform
    uR"(^SG\.[A-Za-z0-9_\-]{16,}\.[A-Za-z0-9_\-]{16,}$)",                      // SendGrid
    uR"(^shp(at|ss|ca|pa)_[a-fA-F0-9]{32}$)",                                  // Shopify
    uR"(^dop_v1_[a-f0-9]{64}$)",                                               // DigitalOcean
    uR"(^[0-9]{8,10}:AA[A-Za-z0-9_\-]{33}$)",                                  // Telegram bots
    uR"(^eyJ[A-Za-z0-9_\-]{8,}\.eyJ[A-Za-z0-9_\-]{8,}\.[A-Za-z0-9_\-]{16,}$)", // JSON Web Tokens (RFC 7519)
};

const std::vector<QRegularExpression>& compiledPatterns() {
    static const std::vector<QRegularExpression> compiled = [] {
        std::vector<QRegularExpression> result;
        for (const QStringView pattern : secretPatterns)
            result.emplace_back(pattern.toString());
        return result;
    }();
    return compiled;
}

} // namespace

bool isSecretToken(const QString& text) {
    const QString trimmed = text::trimmed(text);
    if (trimmed.contains(u"-----BEGIN") && trimmed.contains(u"PRIVATE KEY"))
        return true;
    if (text::hasMoreCharactersThan(trimmed, longestToken))
        return false;
    if (std::ranges::any_of(trimmed, [](QChar unit) { return text::isWhitespaceOrNewline(unit.unicode()); }))
        return false;
    return std::ranges::any_of(compiledPatterns(), [&trimmed](const QRegularExpression& pattern) {
        return pattern.match(trimmed).hasMatch();
    });
}

} // namespace vellumry
