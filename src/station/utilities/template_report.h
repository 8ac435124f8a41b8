#pragma once

// The printed list of a template: what its events are in the library, with their lengths and the total.

#include <string>
#include <vector>

#include "station/platform/files.h"
#include "station/templates/template_file.h"
#include "station/utilities/print_steps.h"
#include "station/utilities/report_pages.h"

namespace quixair {

/// Longer templates are reported up to here.
inline constexpr std::size_t kMostReportedEvents = 1000;

struct ReportedEvent {
  std::string id;
  std::string first_label;  // the template's own title when there is no data file
  std::string minutes;
  std::string length;
  std::string second_label;
};

/// Pauses, announcements and local breaks have no data file; one that is missing is passed over.
ReportedEvent ReadReportedEvent(Files& files, const TemplateEvent& event);

/// "M0001  Some art  Some tit", for the choice of a range.
std::string RangeRow(const ReportedEvent& event);

/// The last event ends its page: the total stands on a page of its own.
std::vector<PrintedPage> TemplatePages(const std::string& template_name,
                                       const std::vector<ReportedEvent>& events, const PrintRange& range,
                                       const std::string& date);

}  // namespace quixair
