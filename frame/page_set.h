// The ten settings pages of the main form, each on its tab.
#pragma once

#include "pages/connection/internet_connection.h"
#include "pages/connection/oem_info.h"
#include "pages/connection/software_components.h"
#include "pages/connection/troubleshooting.h"
#include "pages/privacy/boot_options.h"
#include "pages/privacy/registry_safety.h"
#include "pages/privacy/security_networking.h"
#include "pages/privacy/tracking_clearance.h"
#include "pages/shell/access_restriction.h"
#include "pages/shell/desktop_explorer.h"

namespace frame {

struct PageSet {
  explicit PageSet(pages::PageHost& host)
      : desktop(host), access(host), safety(host), oem(host), trouble(host), boot(host),
        internet(host), tracking(host), software(host), netSec(host) {}

  pages::DesktopExplorer desktop;     // tab 0
  pages::AccessRestriction access;    // tab 1
  pages::RegistrySafety safety;       // tab 2
  pages::OemInfo oem;                 // tab 3
  pages::Troubleshooting trouble;     // tab 4
  pages::BootOptions boot;            // tab 5
  pages::InternetConnection internet; // tab 6
  pages::TrackingClearance tracking;  // tab 7
  pages::SoftwareComponents software; // tab 8
  pages::SecurityNetworking netSec;   // tab 9
};

} // namespace frame
