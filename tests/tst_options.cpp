#include "datarows.h"
#include "options/mrvoptions.h"
#include "support.h"

#include <QFontDatabase>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2.1.
double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

template<typename Value>
QVariant variantOf(const Value &value)
{
    if constexpr (std::is_base_of_v<QTextFormat, Value>) {
        return QTextFormat(value);
    } else {
        return QVariant::fromValue(value);
    }
}

template<typename Setting>
QStringList keyAndDefault(const MRVOptions &options, MRVOptions::SettingType type, int number)
{
    const auto value = options.defaultValue(Setting(number));
    return {options.keyText(Setting(number)), MRVOptions::toText(type, variantOf(value))};
}

/// By the enumeration of the type, as an application asks.
QStringList keyAndDefault(const MRVOptions &options, MRVOptions::SettingType type, int number)
{
    using Ask = QStringList (*)(const MRVOptions &, MRVOptions::SettingType, int);
    const Ask asks[] = {
        keyAndDefault<MRVOptions::FlagSetting>,       keyAndDefault<MRVOptions::IntSetting>,
        keyAndDefault<MRVOptions::RealSetting>,       keyAndDefault<MRVOptions::StringSetting>,
        keyAndDefault<MRVOptions::StringListSetting>, keyAndDefault<MRVOptions::ColorSetting>,
        keyAndDefault<MRVOptions::DateTimeSetting>,   keyAndDefault<MRVOptions::FontSetting>,
        keyAndDefault<MRVOptions::IntListSetting>,    keyAndDefault<MRVOptions::ByteArraySetting>,
        keyAndDefault<MRVOptions::TextCharFormat>,    keyAndDefault<MRVOptions::TextBlockFormat>,
    };
    return asks[type](options, type, number);
}

} // namespace

class tst_Options : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto scope : {QSettings::UserScope, QSettings::SystemScope}) {
            QSettings::setPath(QSettings::NativeFormat, scope,
                               m_home.filePath(QString::number(scope)));
        }
    }

    void init()
    {
        m_options.reset();
        m_folder.reset(new QTemporaryDir);
        m_options.reset(new MRVOptions(file()));
    }

    void keysAndDefaults_data() { addRows("options.tsv"); }
    void keysAndDefaults()
    {
        QFETCH(QString, value);
        int index = 0;
        while (MRVOptions::typeName(MRVOptions::SettingType(index)) != cell("type")) {
            ++index;
        }
        const QStringList found =
            keyAndDefault(*m_options, MRVOptions::SettingType(index), cell("number").toInt());
        QTEST(found.first(), "key");
        if (!value.isEmpty()) {
            QCOMPARE(found.last(), value);
        }
    }

    // Settings files hold the keys, and applications the numbers: one may be added, none may
    // change.
    void storedNames()
    {
        QStringList names;
        for (const QString &key :
             MRVOptions::settingKeys().filter(QRegularExpression("^(?!Sep)"))) {
            const auto setting = m_options->explain(key);
            QCOMPARE(keyAndDefault(*m_options, setting.type, setting.number).first(), key);
            names << QString("%1 %2 %3")
                         .arg(MRVOptions::typeName(setting.type))
                         .arg(setting.number)
                         .arg(key);
            if (setting.type <= MRVOptions::RealType) {
                names.last() += ' ' + MRVOptions::toText(setting.type, setting.defaultValue);
            }
        }
        names.sort();
        QVERIFY2(
            QCryptographicHash::hash(names.join('\n').toUtf8(), QCryptographicHash::Md5).toHex()
                == "e4d06a87be3e65bf23366d91afe336cb",
            qPrintable(names.join('\n')));
    }

    // The text of each default is a value that can be set; a value that is stored but the same is
    // no change, here and after a restart, when much comes back from the file as text.
    void everyDefaultCanBeStored()
    {
        for (const QString &key : MRVOptions::settingKeys()) {
            const auto setting = m_options->explain(key);
            QVERIFY2(setting.origin.isEmpty(), qPrintable(key));
            QVERIFY2(!setting.isChanged(), qPrintable(key));
            const QString text = MRVOptions::toText(setting.type, setting.defaultValue);
            QString error;
            const bool isSet = m_options->setFromText(key, text, &error);
            QVERIFY2(isSet || setting.type == MRVOptions::DateTimeType, qPrintable(key + error));
        }
        const auto options = reread();
        for (const QString &key : MRVOptions::settingKeys()) {
            const auto setting = options->explain(key);
            QCOMPARE(MRVOptions::toText(setting.type, setting.value),
                     MRVOptions::toText(setting.type, setting.defaultValue));
            if (setting.type != MRVOptions::DateTimeType) {
                QCOMPARE(setting.origin, options->fileName());
            }
        }
        QVERIFY(options->changedSettings().isEmpty());
    }

    void texts_data() { addRows("optiontexts.tsv"); }
    void texts()
    {
        QFETCH(QString, key);
        QString error;
        QVERIFY2(m_options->setFromText(key, cell("text"), &error), qPrintable(error));
        const auto options = reread();
        const auto setting = options->explain(key);
        QTEST(MRVOptions::toText(setting.type, setting.value), "stored");
        QCOMPARE(options->changedSettings().size(), 1);
        QCOMPARE(options->changedSettings().first().key, key);
    }

    void refusals_data() { addRows("optionrefusals.tsv"); }
    void refusals()
    {
        QString reason;
        QVERIFY(!m_options->setFromText(cell("key"), cell("text"), &reason));
        QVERIFY2(reason.contains(cell("error")), qPrintable(reason));
        QVERIFY2(!reason.contains('\n'), qPrintable(reason));
        QVERIFY(m_options->allKeys().isEmpty());
    }

    void problems_data() { addRows("optionproblems.tsv"); }
    // What a file holds beyond the limits stays there, but does not reach the application.
    void problems()
    {
        const QByteArray bytes = "[Options]\n" + cell("line").toUtf8() + '\n';
        const QString path = m_folder->filePath("stored.ini");
        QVERIFY(writeBytes(path, bytes));
        const MRVOptions options(path);
        const auto problems = options.problems();
        QCOMPARE(problems.isEmpty() ? "none" : problems.first().kindName(), cell("kind"));
        const QString key = cell("line").section('=', 0, 0).replace('\\', '/');
        if (!problems.isEmpty()) {
            QCOMPARE(problems.size(), 1);
            QCOMPARE(problems.first().key, key);
            QTEST(problems.first().stored, "raw");
            QVERIFY(!problems.first().message.isEmpty());
        }
        const auto setting = options.explain(key);
        if (!cell("read").isEmpty()) {
            QTEST(MRVOptions::toText(setting.type, setting.value), "read");
        }
        if (!setting.key.isEmpty()) {
            QCOMPARE(setting.problem.message.isEmpty(), problems.isEmpty());
        }
        m_options->setValue(MRVOptions::SmartQuotes, false);
        MRVOptions all(m_folder->filePath("all.ini"));
        QCOMPARE(m_options->importFrom(options, MRVOptions::Import::Usable).size(),
                 problems.size());
        QCOMPARE(all.importFrom(options, MRVOptions::Import::All).isEmpty(), options.contains(key));
        QCOMPARE(m_options->contains(key), problems.isEmpty());
        QCOMPARE(m_options->value(MRVOptions::SmartQuotes), problems.isEmpty());
        QCOMPARE(all.value(key), options.value(key));
        QCOMPARE(bytesOf(path), bytes);
    }

    // What a page of preferences is made from.
    void settingTexts()
    {
        const auto settings = MRVOptions::settings();
        QCOMPARE(settings.size(), MRVOptions::settingKeys().size());
        QSet<QString> labels;
        QStringList groups;
        for (const auto &setting : settings) {
            QVERIFY2(setting.description.endsWith('.'), qPrintable(setting.key));
            QVERIFY2(setting.description != setting.label, qPrintable(setting.key));
            QVERIFY2(!setting.label.contains(QRegularExpression("[.:]$|^$")),
                     qPrintable(setting.key));
            labels << setting.group + QString::number(setting.type) + setting.label;
            QCOMPARE(MRVOptions::label(setting.key), setting.label);
            QCOMPARE(MRVOptions::description(setting.key), setting.description);
            if (groups.isEmpty() || groups.last() != setting.group) {
                groups << setting.group;
            }
            for (const auto &choice : setting.choices) {
                QVERIFY2(!choice.label.isEmpty(), qPrintable(setting.key));
            }
        }
        QCOMPARE(labels.size(), settings.size());
        QCOMPARE(groups.removeDuplicates(), 0);
        QCOMPARE(groups.first(), QString("General"));
        QVERIFY(!groups.contains(QString()));
        QCOMPARE(MRVOptions::label(MRVOptions::SaveInterval), QString("Save after"));
        QCOMPARE(MRVOptions::label(MRVOptions::TextColor), QString("Text"));
        QVERIFY(MRVOptions::label(MRVOptions::FlagSetting(60)).isEmpty());
        QVERIFY(MRVOptions::description(MRVOptions::IntListSetting(0)).isEmpty());
        QVERIFY(MRVOptions::label("General/none").isEmpty());
    }

    void unitsAndForms_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("accepts");
        QTest::addColumn<int>("form");
        QTest::newRow("seconds") << "General/saveInterval"
                                 << "1 to 3600 s" << 0;
        QTest::newRow("pixels") << "TextEditing/margin"
                                << "0 to 1000 px" << 0;
        QTest::newRow("no unit") << "Backups/retain"
                                 << "0 to 32767" << 0;
        QTest::newRow("line") << "Ruler/snap"
                              << "" << int(MRVOptions::Line);
        QTest::newRow("lines") << "Separators/ClippingsCustom"
                               << "" << int(MRVOptions::Lines);
        QTest::newRow("folder") << "Backups/location"
                                << "" << int(MRVOptions::FolderPath);
        QTest::newRow("file") << "Compile/KindlePath"
                              << "" << int(MRVOptions::FilePath);
        QTest::newRow("quotes") << "General/DoubleQuotesSubstitution"
                                << "" << int(MRVOptions::QuotePair);
    }
    void unitsAndForms()
    {
        const MRVOptions::Explanation setting = m_options->explain(cell("key"));
        QCOMPARE(setting.accepts(), cell("accepts"));
        QFETCH(int, form);
        QCOMPARE(int(setting.form), form);
        QCOMPARE(setting.toJson().value("unit").toString(), setting.unit);
    }

    void explainsOrigin()
    {
        const QString key = "Backups/retain";
        QSettings system(QSettings::SystemScope, "Morvane", "Morvane");
        system.setValue("Options/" + key, 9);
        system.sync();
        MRVOptions options;
        QCOMPARE(options.explain(key).origin, system.fileName());
        QCOMPARE(options.explain(key).value.toInt(), 9);
        QVERIFY(options.setValue(MRVOptions::BackupsToRetain, 7));
        QCOMPARE(options.explain(key).origin, options.fileName());
        options.resetAllWarnings();
        QVERIFY(!QFile::exists(options.fileName())); // which the checked saving alone may write
        QCOMPARE(options.explain(key).value.toInt(), 7);
        QCOMPARE(options.explain(key).defaultValue.toInt(), 5);
        QCOMPARE(options.explain(key).number, int(MRVOptions::BackupsToRetain));
        QVERIFY(options.explain("backups/retain").key.isEmpty());
        options.remove(key);
        options.clear();
        system.clear();
    }

    void contrasts_data() { addRows("colorpairs.tsv"); }
    void contrasts()
    {
        QFETCH(QString, text);
        const auto color = [this](QString key) {
            return m_options->explain(key.replace('/', "/Colors/")).defaultValue.value<QColor>();
        };
        QVERIFY(color(text).isValid());
        for (const QString &ground : cell("grounds").split(' ')) {
            QVERIFY2(color(ground).isValid(), qPrintable(ground));
            QVERIFY2(contrast(color(text), color(ground)) >= 4.5, qPrintable(ground));
        }
    }

    void colorGroups()
    {
        const auto groups = MRVOptions::colorGroupMap();
        QVector<bool> seen(51);
        for (auto it = groups.begin(); it != groups.end(); ++it) {
            QVERIFY(!MRVOptions::colorGroupName(it.key()).isEmpty());
            QSet<QString> names;
            for (const auto color : it.value()) {
                QVERIFY(!seen.at(color));
                seen[color] = true;
                names << MRVOptions::colorName(color);
            }
            QCOMPARE(names.size(), it.value().size());
            QVERIFY(!names.contains(QString()));
        }
        QVERIFY(!seen.contains(false));
        QVERIFY(MRVOptions::colorName(MRVOptions::ColorSetting(51)).isEmpty());
        QVERIFY(MRVOptions::colorGroupName(MRVOptions::ColorSettingGroup(-1)).isEmpty());
    }

    void themes()
    {
        const auto themes = MRVOptions::indexCardThemes();
        const auto byDefault = qMakePair(m_options->value(MRVOptions::IndexCardBackgroundColor),
                                         m_options->value(MRVOptions::IndexCardBorderColor));
        QVERIFY(MRVOptions::defaultIndexCardTheme().colors == byDefault);
        QVERIFY(themes.size() > 1);
        for (int i = 0; i < themes.size(); ++i) {
            const auto colors = themes.at(i).colors;
            QCOMPARE(MRVOptions::findIndexCardTheme(colors), i);
            QVERIFY(!themes.at(i).name.isEmpty());
            for (const auto text : {MRVOptions::TextColor, MRVOptions::IndexCardStatusColor}) {
                QVERIFY(contrast(m_options->value(text), colors.first) >= 4.5);
            }
            QVERIFY2(contrast(colors.second, colors.first) >= 3, qPrintable(themes.at(i).name));
        }
        QCOMPARE(MRVOptions::findIndexCardTheme({Qt::white, Qt::yellow}), -1);
        QCOMPARE(MRVOptions::findIndexCardTheme({}), -1);
    }

    void fonts()
    {
        const QFont title = m_options->value(MRVOptions::IndexCardTitleFont);
        const QFont small = m_options->value(MRVOptions::IndexCardSynopsisSmallFont);
        QVERIFY(title.bold());
        QVERIFY(!small.bold());
        QVERIFY(small.pointSizeF() > 0);
        QVERIFY(small.pointSizeF() < title.pointSizeF());
        QCOMPARE(title.family(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
        const QTextCharFormat format = m_options->value(MRVOptions::DefaultCharFormat);
        QCOMPARE(format.fontFamily(), title.family());
        QVERIFY(!format.hasProperty(QTextFormat::FontUnderline)); // as a whole QFont would set
    }

    void words_data() { addRows("optionwords.tsv"); }
    void words()
    {
        QFETCH(QString, key);
        QFETCH(QString, word);
        m_options->setValue(key, word);
        const auto options = reread();
        int found = -1;
        QString written;
        if (key.endsWith("CornerStyle")) {
            found = options->cornerStyle();
            QVERIFY(m_options->setCornerStyle(MRVOptions::CorkCornerStyle(found)));
        } else if (key.endsWith("Indicator")) {
            found = options->labelIndicator();
            QVERIFY(m_options->setLabelIndicator(MRVOptions::CorkLabelIndicator(found)));
        } else {
            found = options->spaceDoubleClickMode();
            QVERIFY(m_options->setSpaceDoubleClickMode(MRVOptions::SpaceDoubleClickMode(found)));
        }
        QCOMPARE(QString::number(found), cell("number"));
        if (word != "Unknown") {
            QCOMPARE(m_options->value(key).toString(), word);
        } else {
            QCOMPARE(m_options->value(key).toString(),
                     m_options->explain(key).defaultValue.toString());
        }
    }

    void separators()
    {
        QVERIFY(m_options->separatorType(MRV::MergedDocuments) == MRV::EmptyLine);
        QVERIFY(m_options->separatorType(MRV::Clippings) == MRV::SingleReturn);
        QCOMPARE(m_options->customSeparator(MRV::Morvanings), QString("\n#\n"));
        QVERIFY(m_options->setSeparator(MRV::Morvanings, MRV::CustomSeparator, "* *\n"));
        QVERIFY(reread()->separatorType(MRV::Morvanings) == MRV::CustomSeparator);
        QVERIFY(m_options->setSeparator(MRV::Morvanings, MRV::SingleReturn, QString()));
        QVERIFY(!m_options->setSeparator(MRV::SeparatorContext(3), MRV::EmptyLine, "a"));
        QVERIFY(!m_options->setSeparator(MRV::Morvanings, MRV::SeparatorType(3), "a"));
        const auto options = reread();
        QCOMPARE(options->value("Separators/Morvanings").toString(), QString("SingleReturn"));
        QVERIFY(options->separatorType(MRV::Morvanings) == MRV::SingleReturn);
        QCOMPARE(options->customSeparator(MRV::Morvanings), QString("* *\n"));
        QVERIFY(options->separatorType(MRV::MergedDocuments) == MRV::EmptyLine);
        QVERIFY(m_options->setSeparator(MRV::Morvanings, MRV::CustomSeparator, ""));
        QVERIFY(reread()->customSeparator(MRV::Morvanings).isEmpty());
    }

    void quotes()
    {
        const auto text = [](const QPair<QString, QString> &quotes) {
            return quotes.first + '|' + quotes.second;
        };
        QCOMPARE(text(m_options->doubleQuotes()), QString("“|”"));
        QCOMPARE(text(m_options->singleQuotes()), QString("‘|’"));
        m_options->setValue(MRVOptions::DoubleQuotesSubstitution, QString("«  »"));
        m_options->setValue(MRVOptions::SingleQuotesSubstitution, QString("abc"));
        const auto options = reread();
        QCOMPARE(text(options->doubleQuotes()), QString("« | »"));
        QCOMPARE(text(options->singleQuotes()), QString("‘|’"));
    }

    void pdfSettings()
    {
        const QStringList names{"A/B", "A//B", "A\\B", "A%2FB", "Für Verlage", ""};
        for (const QString &name : names) {
            QVERIFY(m_options->setPdfSettings(name, name.toUtf8() + '\0'));
        }
        const auto options = reread();
        for (const QString &name : names) {
            QCOMPARE(options->pdfSettings(name), name.toUtf8() + '\0');
        }
        QVERIFY(options->pdfSettings("A").isEmpty());
    }

    void autoReplaceList()
    {
        const int defaults = MRVAutoReplaceList::defaultReplacements().size();
        QCOMPARE(m_options->autoReplaceList().size(), defaults);
        MRVAutoReplaceList list{{true, "teh", "the"}};
        QVERIFY(m_options->setAutoReplaceList(list));
        const auto stored = reread()->autoReplaceList();
        QCOMPARE(stored.size(), 1 + 6);
        QCOMPARE(stored.at(0).match, QString("teh"));
        QVERIFY(!stored.at(6).enabled);
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray(8, '\2'), list.toByteArray().left(4)}) {
            m_options->setValue(MRVOptions::SubstitutionList, bytes);
            QCOMPARE(reread()->autoReplaceList().size(), defaults);
        }
    }

    void imports()
    {
        QCOMPARE(m_options->defaultTextEncoding(), QByteArray("UTF-8"));
        m_options->setDefaultTextEncoding("windows-1252");
        QCOMPARE(reread()->defaultTextEncoding(), QByteArray("windows-1252"));
        m_options->setDefaultTextEncoding("klingon");
        QCOMPARE(reread()->defaultTextEncoding(), QByteArray("UTF-8"));

        QCOMPARE(m_options->defaultImportUrlType(), MRVImportExport::ImportAsPdfWithDoc2AnyWebKit);
        m_options->setDefaultImportUrlType(MRVImportExport::ImportAsMht);
        QCOMPARE(reread()->defaultImportUrlType(), MRVImportExport::ImportAsMht);
        QCOMPARE(reread()->value(MRVOptions::ImportDefaultUrlType), QByteArray("ImportAsMht"));
    }

    void folders()
    {
        const QString path = MRVOptions::defaultBackupPath();
        QVERIFY2(QDir::isAbsolutePath(path), qPrintable(path));
        QVERIFY2(path.endsWith("/Morvane/Morvane/Backups"), qPrintable(path));
        QCOMPARE(m_options->backupPath(), path);
        m_options->setValue(MRVOptions::BackupsLocation, QString("/mnt/b"));
        QCOMPARE(reread()->backupPath(), QString("/mnt/b"));
        m_options->setValue(MRVOptions::BackupsLocation, QString());
        QCOMPARE(reread()->backupPath(), path);
    }

    void languages()
    {
        QVERIFY(MRVOptions::guiLanguages().contains("en"));
        QCOMPARE(MRVOptions::defaultGuiLanguageCode(), QString("en"));
        QTemporaryDir translations;
        QFile(translations.filePath("mrvbase_de.qm")).open(QIODevice::WriteOnly);
        qputenv("MORVANE_TRANSLATIONS", translations.path().toUtf8());
        qputenv("LC_ALL", "de_AT.UTF-8");
        const QString code = MRVOptions::defaultGuiLanguageCode();
        qputenv("LC_ALL", "C.UTF-8");
        qunsetenv("MORVANE_TRANSLATIONS");
        QCOMPARE(code, QString("de"));
    }

    void warnings()
    {
        m_options->setValue("Warnings/splitScene", false);
        m_options->setValue("Backups/retain", 3);
        MRVSettings state(file(), QSettings::IniFormat);
        state.setValue("ShowImportWarning", false);
        state.setValue("ShowGettingStarted", false);
        m_options->beginGroup("Nested");
        m_options->resetAllWarnings();
        QCOMPARE(m_options->group(), QString("Options/Nested"));
        m_options->endGroup();
        QVERIFY(!m_options->contains("Warnings/splitScene"));
        QCOMPARE(m_options->value(MRVOptions::BackupsToRetain), 3);
        QVERIFY(state.value("ShowImportWarning").toBool());
        QVERIFY(!state.value("ShowGettingStarted").toBool());
    }

    void announces()
    {
        QSignalSpy spy(m_options.data(), &MRVSettings::groupsChanged);
        m_options->setValue(MRVOptions::SmartQuotes, false);
        m_options->setValue(MRVOptions::TextColor, QColor(Qt::black));
        m_options->setValue(MRVOptions::CapitalizeI, false);
        QVERIFY(spy.wait());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toStringList(),
                 QStringList({"AutoCorrection", "TextEditing/Colors"}));
    }

    void onlyInstance()
    {
        QCOMPARE(mrvOptions(), MRVOptions::instance());
        QVERIFY(!mrvOptions()->parent());
        QCOMPARE(mrvOptions()->group(), QString("Options"));
        QCOMPARE(mrvOptions()->fileName(), m_home.filePath("0/Morvane/Morvane.conf"));
    }

    void harmfulValues_data() { addRows("harmfulsettings.tsv"); }
    // What would harm is left out, and nothing else. Only a save touches the file.
    void harmfulValues()
    {
        QFETCH(QString, isKept);
        const QByteArray line = "TextEditing\\Colors\\Text=" + cell("value").toUtf8() + '\n';
        const QByteArray before = "[Options]\n" + line + "Backups\\retain=7\n";
        const QString path = m_folder->filePath("harm.ini");
        QVERIFY(writeBytes(path, before));
        MRVOptions options(path);
        QCOMPARE(options.value(MRVOptions::BackupsToRetain), 7);
        QVERIFY(options.value(MRVOptions::TextColor).isValid());
        QCOMPARE(options.contains("TextEditing/Colors/Text"), isKept == "yes");
        QVERIFY(options.saveNow());
        QCOMPARE(bytesOf(path), before);
        QVERIFY(!QFile::exists(path + ".damaged"));
        options.setValue("a/b", 1);
        QVERIFY(options.saveNow());
        QCOMPARE(bytesOf(path + ".damaged"), isKept == "yes" ? QByteArray() : before);
    }

    void harmfulFiles_data() { addRows("harmfulfiles.tsv"); }
    // Twice, since what was kept the first time must not be lost.
    void harmfulFiles()
    {
        const QString path = m_folder->filePath("harm.ini");
        for (int i = 0; i < 2; ++i) {
            const QByteArray before =
                (i == 0 ? "" : ";\n") + QByteArray("[Options]\n") + cell("lines").toUtf8();
            QVERIFY(writeBytes(path, before));
            MRVOptions options(path);
            options.setValue("z", 1);
            QVERIFY(options.saveNow());
            QTEST(QString::fromUtf8(bytesOf(path)).section("[Options]\n", 1), "left");
            QByteArrayList kept;
            for (const QString &name : QDir(m_folder->path()).entryList({"harm*damaged*"})) {
                kept << bytesOf(m_folder->filePath(name));
            }
            QCOMPARE(kept.size(), i + 1);
            QVERIFY(kept.contains(before));
        }
    }

private:
    QString file() const { return m_folder->filePath("options.ini"); }
    // What another process would see, without what the objects of this one share in memory.
    QScopedPointer<MRVOptions> reread()
    {
        m_options->saveNow();
        const QString copy = m_folder->filePath(QString("copy%1.ini").arg(++m_copies));
        QFile::copy(file(), copy);
        return QScopedPointer<MRVOptions>(new MRVOptions(copy));
    }

    QTemporaryDir m_home;
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MRVOptions> m_options;
    int m_copies = 0;
};

QTEST_MAIN(tst_Options)
#include "tst_options.moc"
