#include "desktop/form_loader.h"

#include <QFile>
#include <QUiLoader>

#include "desktop/grid_table.h"
#include "desktop/row_list.h"
#include "desktop/station_text.h"
#include "desktop/views/big_clock.h"
#include "desktop/views/capture_meters.h"
#include "desktop/views/fitted_text.h"
#include "desktop/views/item_progress.h"
#include "desktop/views/level_meters.h"
#include "desktop/views/marked_lists.h"
#include "desktop/views/state_lamp.h"
#include "desktop/views/stop_set_panel.h"
#include "desktop/views/transport_bar.h"
#include "desktop/views/warning_banner.h"

namespace quixair::desktop {
namespace {

QWidget* MakeCustom(const QString& class_name, QWidget* parent) {
  if (class_name == QLatin1String("QListView")) return new RowList(parent);
  if (class_name == QLatin1String("QTableView")) return new GridTable(parent);
  if (class_name == QLatin1String("FittedLabel")) return new FittedLabel(parent);
  if (class_name == QLatin1String("TransportBar")) return new TransportBar(parent);
  if (class_name == QLatin1String("BigClock")) return new BigClock(parent);
  if (class_name == QLatin1String("StateLamp")) return new StateLamp(parent);
  if (class_name == QLatin1String("ItemProgress")) return new ItemProgress(parent);
  if (class_name == QLatin1String("LevelMeters")) return new LevelMeters(parent);
  if (class_name == QLatin1String("CaptureMeters")) return new CaptureMeters(parent);
  if (class_name == QLatin1String("StopSetPanel")) return new StopSetPanel(parent);
  if (class_name == QLatin1String("WarningBanner")) return new WarningBanner(parent);
  if (class_name == QLatin1String("StopSetRows")) return new StopSetRows(parent);
  if (class_name == QLatin1String("DayTemplates")) return new DayTemplates(parent);
  return nullptr;
}

class FormLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& class_name, QWidget* parent, const QString& name) override {
    QWidget* custom = MakeCustom(class_name, parent);
    if (custom == nullptr) return QUiLoader::createWidget(class_name, parent, name);
    custom->setObjectName(name);
    return custom;
  }
};

}  // namespace

std::unique_ptr<QWidget> LoadForm(std::string_view screen_name) {
  QFile file(QStringLiteral(":/forms/") + ToQt(screen_name) + QStringLiteral(".ui"));
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  FormLoader loader;
  return std::unique_ptr<QWidget>(loader.load(&file));
}

}  // namespace quixair::desktop
