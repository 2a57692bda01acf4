#include "novel.h"
#include "settings/mrvsettings.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <random>

#include <unistd.h>

namespace {

constexpr int Settings = 50;
constexpr int Rounds = 400;

const QString &key(int setting)
{
    static const QStringList keys = [] {
        QStringList list;
        for (int i = 0; i < Settings; ++i) {
            list << QStringLiteral("%1/checkForUpdatesInterval%2")
                        .arg(i % 2 ? QStringLiteral("General") : QStringLiteral("Appearance"))
                        .arg(i);
        }
        return list;
    }();
    return keys.at(setting);
}

class Store : public MRVSettings
{
public:
    using MRVSettings::MRVSettings;
    QString keyText(IntSetting setting) const override { return key(setting); }
    QString keyText(StringSetting setting) const override { return key(setting); }
};

struct Stores
{
    Stores()
        : ours(folder.filePath(QStringLiteral("ours")), QSettings::IniFormat)
        , bare(folder.filePath(QStringLiteral("bare")), QSettings::IniFormat)
    {
        ours.setGroup(QStringLiteral("Options"));
        bare.beginGroup(QStringLiteral("Options"));
        for (int i = 0; i < Settings; ++i) {
            ours.setValue(key(i), i);
            bare.setValue(key(i), i);
        }
    }

    QTemporaryDir folder;
    Store ours;
    QSettings bare;
};

} // namespace

static void setValue(benchmark::State &state)
{
    Stores stores;
    compare(
        state,
        [&] {
            for (int round = 0; round < Rounds; ++round) {
                for (int i = 0; i < Settings; ++i) {
                    stores.ours.setValue(key(i), round);
                }
            }
        },
        [&] {
            for (int round = 0; round < Rounds; ++round) {
                for (int i = 0; i < Settings; ++i) {
                    stores.bare.setValue(key(i), round);
                }
            }
        });
}
BENCHMARK(setValue)->Iterations(5);

// What is read is stored, or is not, and then has a default.
static void value(benchmark::State &state)
{
    Stores stores;
    if (state.range(0) == 0) {
        stores.ours.remove(QString());
        stores.bare.remove(QString());
    }
    int sum = 0;
    compare(
        state,
        [&] {
            for (int round = 0; round < Rounds; ++round) {
                for (int i = 0; i < Settings; ++i) {
                    sum += stores.ours.value(MRVSettings::IntSetting(i));
                }
            }
        },
        [&] {
            for (int round = 0; round < Rounds; ++round) {
                for (int i = 0; i < Settings; ++i) {
                    sum += stores.bare.value(key(i), 0).toInt();
                }
            }
        });
    benchmark::DoNotOptimize(sum);
}
BENCHMARK(value)->ArgName("stored")->Arg(1)->Arg(0)->Iterations(5);

// A change and its saving, among settings of a size, against QSettings and a sync of its file,
// since the store's file is synced, too.
static void save(benchmark::State &state)
{
    Stores stores;
    QByteArray picture(int(state.range(0)), '\0');
    std::mt19937 random(1);
    std::generate(picture.begin(), picture.end(), [&random] { return char(random()); });
    stores.ours.setValue(QStringLiteral("Picture/bytes"), picture);
    stores.bare.setValue(QStringLiteral("Picture/bytes"), picture);
    int round = 0;
    compare(
        state,
        [&] {
            stores.ours.setValue(key(0), ++round);
            stores.ours.saveNow();
        },
        [&] {
            stores.bare.setValue(key(0), ++round);
            stores.bare.sync();
            QFile file(stores.bare.fileName());
            file.open(QIODevice::ReadWrite);
            ::fsync(file.handle());
        });
}
BENCHMARK(save)->ArgName("bytes")->Arg(0)->Arg(500000)->Arg(2000000)->Iterations(5);
