#pragma once

// The maker's identity and its web addresses, kept in one place.
namespace AppInfo {
inline constexpr const char *organizationName = "TavrelinSoftware";
inline constexpr const char *organizationDomain = "tavrelinsoftware.com";
inline constexpr const char *applicationName = "Rostera";
inline constexpr const char *applicationVersion = "2.08.03";
inline constexpr const char *homePage = "http://www.tavrelinsoftware.com";
inline constexpr const char *webHost = "www.tavrelinsoftware.com";
inline constexpr const char *onlineHelpPath = "/onlinehelp/rtr/index.html";
}
