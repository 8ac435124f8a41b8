#include "station/screen_catalogue.h"

#include "station/console/about.h"
#include "station/console/autostart.h"
#include "station/console/console.h"
#include "station/console/custom_information.h"
#include "station/console/error_log.h"
#include "station/console/first_use.h"
#include "station/console/help.h"
#include "station/console/splash.h"
#include "station/onair/start_time_prompt.h"
#include "station/picklist/pick_list_form1.h"
#include "station/random/random_form1.h"
#include "station/random/random_setup.h"
#include "station/recording/artist_title.h"
#include "station/recording/auto_time.h"
#include "station/recording/capture_screen.h"
#include "station/recording/import_win.h"
#include "station/recording/import_win_auto.h"
#include "station/recording/record_a_song.h"
#include "station/recording/record_liner.h"
#include "station/recording/record_spot.h"
#include "station/templates/build_template.h"
#include "station/templates/build_template1.h"
#include "station/templates/copy_sat_temp.h"
#include "station/templates/erase_template.h"
#include "station/templates/play_template.h"
#include "station/templates/remove_sat_spot.h"
#include "station/templates/transfer_template.h"
#include "station/utilities/erase_utility.h"
#include "station/utilities/print_recordings.h"
#include "station/utilities/print_template.h"

namespace quixair {
namespace {

template <class AnyScreen>
std::unique_ptr<Screen> Make(const Platform& platform) {
  return std::make_unique<AnyScreen>(platform);
}

}  // namespace

ScreenRegistry::Catalogue StationScreens() {
  return {
      {"ArtistTitle", Make<ArtistTitle>},
      {"Autostart", Make<Autostart>},
      {"AutoTime", Make<AutoTime>},
      {"BuildTemplate", Make<BuildTemplate>},
      {"BuildTemplate1", Make<BuildTemplate1>},
      {"Console", Make<Console>},
      {"CopySatTemp", Make<CopySatTemp>},
      {"CustomInformation", Make<CustomInformation>},
      {"ErasePickCustom", Make<ErasePickCustom>},
      {"EraseSimSatCustom", Make<EraseSimSatCustom>},
      {"EraseUtility", Make<EraseUtility>},
      {"ErrorLog", Make<ErrorLog>},
      {"ExportTemplate", Make<ExportTemplate>},
      {"frmAbout", Make<About>},
      {"frmSplash", Make<Splash>},
      {"ImportTemplate", Make<ImportTemplate>},
      {"ImportWin", Make<ImportWin>},
      {"ImportWinAuto", Make<ImportWinAuto>},
      {"InstallInfo", Make<InstallInfo>},
      {"InstallInfo2", Make<InstallInfo2>},
      {"MMregOCX", Make<MMregOCX>},
      {"PickListForm1", Make<PickListForm1>},
      {"PickListForm2", Make<PickListForm2>},
      {"PickPlayTemplate", Make<PickPlayTemplate>},
      {"PrintPickListTemplate", Make<PrintPickListTemplate>},
      {"PrintRecordingsMDI", Make<PrintRecordingsMDI>},
      {"PrintSatTemplateMDI", Make<PrintSatTemplateMDI>},
      {"QXHelp", Make<QXHelp>},
      {"RandomForm1", Make<RandomForm1>},
      {"RandomForm2", Make<RandomForm2>},
      {"RandomSetup", Make<RandomSetup>},
      {"RecordASong", Make<RecordASong>},
      {"RecordIt", Make<RecordIt>},
      {"RecordITLiner", Make<RecordITLiner>},
      {"RecordITSpot", Make<RecordITSpot>},
      {"RecordLiner", Make<RecordLiner>},
      {"RecordSpot", Make<RecordSpot>},
      {"RecordTimes", Make<RecordTimes>},
      {"RemoveSatSpot", Make<RemoveSatSpot>},
      {"SatPlayTemplate", Make<SatPlayTemplate>},
  };
}

}  // namespace quixair
