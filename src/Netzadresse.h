#pragma once

/// The maker's web address: a placeholder under a domain reserved for examples. Title and orbit
/// list show it.
inline constexpr const char* Netzadresse = "https://wirbelwerk.example";
