<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>AddPatternDialog</name>
    <message>
        <source>First pattern</source>
        <translation>Первая схема</translation>
    </message>
</context>
<context>
    <name>AutomaticStackerDialog</name>
    <message>
        <source>Automatic layout</source>
        <translation>Автоматическая раскладка</translation>
    </message>
    <message>
        <source>Top and bottom margin</source>
        <translation>Отступ сверху и снизу</translation>
    </message>
    <message>
        <source>Left and right margin</source>
        <translation>Отступ слева и справа</translation>
    </message>
    <message>
        <source>Space between products</source>
        <translation>Зазор между изделиями</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
    <message>
        <source>%1 mm over the pallet&apos;s edge</source>
        <translation>%1 mm за край паллеты</translation>
    </message>
    <message>
        <source>Nothing fits</source>
        <translation>Ничего не помещается</translation>
    </message>
    <message>
        <source>No turned row fits</source>
        <translation>Повёрнутый ряд не помещается</translation>
    </message>
    <message>
        <source>Boxes: %1, area: %2 %</source>
        <translation>Коробок: %1, площадь: %2 %</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>предупреждение</translation>
    </message>
    <message>
        <source>Confirm whether to overwrite the current stack type?</source>
        <translation>Заменить текущую раскладку?</translation>
    </message>
    <message>
        <source>Please select an effective stack type!</source>
        <translation>Выберите подходящую раскладку!</translation>
    </message>
</context>
<context>
    <name>CalibrationFrame</name>
    <message>
        <source>Pallet frame</source>
        <translation>Система паллеты</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Инструмент</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>Подача</translation>
    </message>
</context>
<context>
    <name>CascadeNestingWizard</name>
    <message>
        <source>Layers</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>Layer sequence</source>
        <translation>Последовательность слоёв</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Штабель</translation>
    </message>
</context>
<context>
    <name>ControllerDialog</name>
    <message>
        <source>Recipes on the controller</source>
        <translation>Рецепты в контроллере</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>What the comparison says</source>
        <translation>Результат сравнения</translation>
    </message>
    <message>
        <source>Recipes of panel and controller</source>
        <translation>Рецепты панели и контроллера</translation>
    </message>
    <message>
        <source>Send everything</source>
        <translation>Передать всё</translation>
    </message>
    <message>
        <source>Send all recipes to the controller</source>
        <translation>Передать все рецепты контроллеру</translation>
    </message>
    <message>
        <source>Why nothing can be sent</source>
        <translation>Почему передать нельзя</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>Активный инструмент</translation>
    </message>
    <message>
        <source>Tool to switch to</source>
        <translation>Новый инструмент</translation>
    </message>
    <message>
        <source>Switch tool</source>
        <translation>Сменить инструмент</translation>
    </message>
    <message>
        <source>Switch the active tool</source>
        <translation>Сменить активный инструмент</translation>
    </message>
    <message>
        <source>There is no connection to the controller. Editing goes on; send the recipes when it is back.</source>
        <translation>Нет связи с контроллером. Править можно; передайте рецепты, когда связь вернётся.</translation>
    </message>
    <message>
        <source>The controller is being asked for its recipes.</source>
        <translation>Запрашиваются рецепты контроллера.</translation>
    </message>
    <message>
        <source>The controller does not tell its recipes: %1</source>
        <translation>Контроллер не сообщает свои рецепты: %1</translation>
    </message>
    <message>
        <source>The controller holds all %1 recipes as they are here.</source>
        <translation>Контроллер хранит все рецепты (%1) такими же, как здесь.</translation>
    </message>
    <message>
        <source>%1 of %2 recipes differ. Send everything to make the controller&apos;s the same.</source>
        <translation>Отличаются рецепты: %1 из %2. Передайте всё, чтобы они совпали.</translation>
    </message>
    <message>
        <source>Active tool: %1</source>
        <translation>Активный инструмент: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестен</translation>
    </message>
    <message>
        <source>Not possible without a connection.</source>
        <translation>Без связи невозможно.</translation>
    </message>
    <message>
        <source>Shared tool %1</source>
        <translation>Общий инструмент %1</translation>
    </message>
    <message>
        <source>Tool of %1</source>
        <translation>Инструмент рецепта %1</translation>
    </message>
    <message>
        <source>The recipes are being sent.</source>
        <translation>Рецепты передаются.</translation>
    </message>
    <message>
        <source>The controller took all %1 recipes.</source>
        <translation>Контроллер принял все рецепты: %1.</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>Рецепты не приняты: %1</translation>
    </message>
    <message>
        <source>The tool is being switched.</source>
        <translation>Инструмент меняется.</translation>
    </message>
    <message>
        <source>The controller works with the tool %1.</source>
        <translation>Контроллер работает с инструментом %1.</translation>
    </message>
    <message>
        <source>The controller did not take the tool. The log may say why.</source>
        <translation>Контроллер не принял инструмент. Причина может быть в журнале.</translation>
    </message>
</context>
<context>
    <name>DirectionsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>План схемы</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Choose all products</source>
        <translation>Выбрать все изделия</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>Несколько</translation>
    </message>
    <message>
        <source>Choose several products</source>
        <translation>Выбрать несколько изделий</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Предложить</translation>
    </message>
    <message>
        <source>Propose sides for the chosen products, or for all</source>
        <translation>Предложить стороны для выбранных или всех изделий</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>Что задаётся</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>From the upper left</source>
        <translation>Слева сверху</translation>
    </message>
    <message>
        <source>From above on the plan</source>
        <translation>На плане сверху</translation>
    </message>
    <message>
        <source>From the upper right</source>
        <translation>Справа сверху</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Straight down</source>
        <translation>Прямо вниз</translation>
    </message>
    <message>
        <source>From the right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>From the lower left</source>
        <translation>Слева снизу</translation>
    </message>
    <message>
        <source>From below on the plan</source>
        <translation>На плане снизу</translation>
    </message>
    <message>
        <source>From the lower right</source>
        <translation>Справа снизу</translation>
    </message>
    <message>
        <source>No products</source>
        <translation>Изделий нет</translation>
    </message>
    <message>
        <source>All products</source>
        <translation>Все изделия</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Изделие %1</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>Выбрано изделий: %1</translation>
    </message>
</context>
<context>
    <name>EditTools</name>
    <message>
        <source>Choose all products</source>
        <translation>Выбрать все изделия</translation>
    </message>
    <message>
        <source>Choose several products by tapping</source>
        <translation>Выбирать несколько изделий касанием</translation>
    </message>
    <message>
        <source>Move the plan with a finger</source>
        <translation>Двигать план пальцем</translation>
    </message>
    <message>
        <source>Snap to edges and neighbours</source>
        <translation>Привязка к краям и соседям</translation>
    </message>
    <message>
        <source>Add a product</source>
        <translation>Добавить изделие</translation>
    </message>
    <message>
        <source>Copy the chosen products</source>
        <translation>Копировать выбранные изделия</translation>
    </message>
    <message>
        <source>Paste products</source>
        <translation>Вставить изделия</translation>
    </message>
    <message>
        <source>Remove the chosen products</source>
        <translation>Удалить выбранные изделия</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the left</source>
        <translation>Повернуть на 90° влево</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the right</source>
        <translation>Повернуть на 90° вправо</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Сдвинуть влево</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Сдвинуть вправо</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Сдвинуть вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Сдвинуть вниз</translation>
    </message>
    <message>
        <source>Step of moving</source>
        <translation>Шаг сдвига</translation>
    </message>
    <message>
        <source>Mirror the pattern, left and right</source>
        <translation>Отразить схему слева направо</translation>
    </message>
    <message>
        <source>Mirror the pattern, top and bottom</source>
        <translation>Отразить схему сверху вниз</translation>
    </message>
    <message>
        <source>Turn the whole pattern by 180 degrees</source>
        <translation>Повернуть всю схему на 180°</translation>
    </message>
    <message>
        <source>Angle to turn by</source>
        <translation>Угол поворота</translation>
    </message>
    <message>
        <source>Turn by the angle beside</source>
        <translation>Повернуть на угол рядом</translation>
    </message>
    <message>
        <source>Align left edges</source>
        <translation>Выровнять по левым краям</translation>
    </message>
    <message>
        <source>Align middles across</source>
        <translation>Выровнять середины поперёк</translation>
    </message>
    <message>
        <source>Align right edges</source>
        <translation>Выровнять по правым краям</translation>
    </message>
    <message>
        <source>Space evenly across</source>
        <translation>Распределить поперёк</translation>
    </message>
    <message>
        <source>Align upper edges</source>
        <translation>Выровнять по верхним краям</translation>
    </message>
    <message>
        <source>Align middles along</source>
        <translation>Выровнять середины вдоль</translation>
    </message>
    <message>
        <source>Align lower edges</source>
        <translation>Выровнять по нижним краям</translation>
    </message>
    <message>
        <source>Space evenly along</source>
        <translation>Распределить вдоль</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>Copy, remove, turn</source>
        <translation>Копировать, удалить, повернуть</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Сдвиг</translation>
    </message>
    <message>
        <source>Whole pattern; turn by an angle</source>
        <translation>Вся схема; поворот на угол</translation>
    </message>
    <message>
        <source>Align and space across</source>
        <translation>Выровнять и распределить поперёк</translation>
    </message>
    <message>
        <source>Align and space along</source>
        <translation>Выровнять и распределить вдоль</translation>
    </message>
    <message>
        <source>Show the plan larger</source>
        <translation>Увеличить план</translation>
    </message>
    <message>
        <source>Show the plan smaller</source>
        <translation>Уменьшить план</translation>
    </message>
</context>
<context>
    <name>ExchangeTableModel</name>
    <message>
        <source>ticked</source>
        <translation>отмечено</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>не отмечено</translation>
    </message>
</context>
<context>
    <name>ExchangeText</name>
    <message>
        <source>recipe %1</source>
        <translation>рецепт %1</translation>
    </message>
    <message>
        <source>recipe %1 &quot;%2&quot;</source>
        <translation>рецепт %1 «%2»</translation>
    </message>
    <message>
        <source>holds no list of recipes</source>
        <translation>не содержит списка рецептов</translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation>Запись файла</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>Чтение файла</translation>
    </message>
</context>
<context>
    <name>FeedingDirectionWizard</name>
    <message>
        <source>Feeding directions</source>
        <translation>Направления подвода</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Стороны</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Штабель</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>%1 is outside of %2 to %3%4.</source>
        <translation>%1 вне пределов от %2 до %3%4.</translation>
    </message>
    <message>
        <source>With this margin no product fits on the pallet.</source>
        <translation>С таким отступом на паллету не помещается ни одно изделие.</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>The product is larger than the pallet; it will reach over the edge.</source>
        <translation>Изделие больше паллеты и будет выступать за её край.</translation>
    </message>
</context>
<context>
    <name>FrameText</name>
    <message>
        <source>The pallet&apos;s place needs three calibration points.</source>
        <translation>Для места паллеты нужны три точки калибровки.</translation>
    </message>
</context>
<context>
    <name>HomeParts</name>
    <message>
        <source>Production</source>
        <translation>Производство</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Рецепты</translation>
    </message>
</context>
<context>
    <name>ImExportDialog</name>
    <message>
        <source>How many are ticked</source>
        <translation>Сколько отмечено</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>When a name is taken</source>
        <translation>Если имя занято</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Tick all</source>
        <translation>Отметить все</translation>
    </message>
    <message>
        <source>Tick none</source>
        <translation>Снять все</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Рецепты</translation>
    </message>
    <message>
        <source>Undo the last import</source>
        <translation>Отменить последний импорт</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>Импорт рецептов</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>Экспорт рецептов</translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation>Файл не выбран</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>Место не выбрано</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>These recipes are here already. Choose a file.</source>
        <translation>Эти рецепты уже есть. Выберите файл.</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>Отмечено %1 из %2</translation>
    </message>
    <message>
        <source>Open XML file</source>
        <translation>Открыть файл XML</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>Save XML file</source>
        <translation>Сохранить файл XML</translation>
    </message>
    <message>
        <source>Choose a file to import from.</source>
        <translation>Выберите файл для импорта.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>Отменено. Ничего не изменено.</translation>
    </message>
    <message>
        <source>Imported: %1 new recipes, %2 of them replace others.</source>
        <translation>Импортировано рецептов: %1, из них заменили другие: %2.</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>Путь экспорта не может быть пустым!</translation>
    </message>
    <message>
        <source>Cancelled. No file was written.</source>
        <translation>Отменено. Файл не записан.</translation>
    </message>
    <message>
        <source>%1 recipes were written to %2.</source>
        <translation>Рецептов записано: %1, в %2.</translation>
    </message>
    <message>
        <source>%1 imported recipes are removed, with what was changed in them since, and %2 replaced ones come back.</source>
        <translation>Импортированные рецепты (%1) удаляются вместе с их изменениями, заменённые (%2) возвращаются.</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>Последний импорт отменён.</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Что произойдёт</translation>
    </message>
</context>
<context>
    <name>ImExportProjectDialog</name>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Select Project</source>
        <translation>Выбор проекта</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Выбрать файлы</translation>
    </message>
    <message>
        <source>Please select a project and ensure that the imported project file is complete, otherwise the import will fail!</source>
        <translation>Выберите проект и убедитесь, что файл проекта полон, иначе импорт не удастся!</translation>
    </message>
    <message>
        <source>Folder for the archives</source>
        <translation>Папка для архивов</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Choose the folder for the archives</source>
        <translation>Выбрать папку для архивов</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Choose all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Choose none</source>
        <translation>Снять выбор</translation>
    </message>
    <message>
        <source>You can select the following actions to handle projects with the same name in the imported content. Rename the project by default, or you can choose to replace an existing project.</source>
        <translation>Выберите, что делать с проектами, имя которых занято. Обычно проект переименовывается; можно заменить имеющийся.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Rename the imported project</source>
        <translation>Переименовать импортируемый проект</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace the existing project</source>
        <translation>Заменить имеющийся проект</translation>
    </message>
    <message>
        <source>Project templates</source>
        <translation>Шаблоны проекта</translation>
    </message>
    <message>
        <source>Leave the templates</source>
        <translation>Оставить шаблоны</translation>
    </message>
    <message>
        <source>Reset template</source>
        <translation>Сбросить шаблоны</translation>
    </message>
    <message>
        <source>Custom template</source>
        <translation>Свои шаблоны</translation>
    </message>
    <message>
        <source>Archive of templates</source>
        <translation>Архив шаблонов</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Choose the archive of templates</source>
        <translation>Выбрать архив шаблонов</translation>
    </message>
    <message>
        <source>Export the program templates</source>
        <translation>Экспортировать шаблоны программ</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Project archives</source>
        <translation>Архивы проектов</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>Импорт проектов</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>Экспорт проектов</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>No folder is chosen</source>
        <translation>Папка не выбрана</translation>
    </message>
    <message>
        <source>No file is chosen</source>
        <translation>Файл не выбран</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Архив</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Что произойдёт</translation>
    </message>
    <message>
        <source>Choose project archives</source>
        <translation>Выбрать архивы проектов</translation>
    </message>
    <message>
        <source>Checking the archives</source>
        <translation>Проверка архивов</translation>
    </message>
    <message>
        <source>Choose a folder for the archives</source>
        <translation>Выберите папку для архивов</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Не импортируется</translation>
    </message>
    <message>
        <source>Replaces the project %1</source>
        <translation>Заменит проект %1</translation>
    </message>
    <message>
        <source>Renamed to %1</source>
        <translation>Станет %1</translation>
    </message>
    <message>
        <source>New project %1</source>
        <translation>Новый проект %1</translation>
    </message>
    <message>
        <source>New file %1</source>
        <translation>Новый файл %1</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>Не экспортируется</translation>
    </message>
    <message>
        <source>Replaces %1 of %2</source>
        <translation>Заменит %1 от %2</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>Импортировано: %1</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>Экспортировано.</translation>
    </message>
    <message>
        <source>Cancelled: the folder is as it was before.</source>
        <translation>Отменено: папка не изменилась.</translation>
    </message>
    <message>
        <source>Not everything was exported; the log says why.</source>
        <translation>Экспортировано не всё; причина в журнале.</translation>
    </message>
    <message>
        <source>Cancelled: everything is as it was before.</source>
        <translation>Отменено: всё осталось как было.</translation>
    </message>
    <message>
        <source>Nothing was imported; the log says why.</source>
        <translation>Ничего не импортировано; причина в журнале.</translation>
    </message>
    <message>
        <source>Take the last import back? What was changed in it since is lost: %1</source>
        <translation>Отменить последний импорт? Изменения после него пропадут: %1</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>Последний импорт отменён.</translation>
    </message>
    <message>
        <source>None</source>
        <comment>choose none</comment>
        <translation>Снять все</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Не импортированы: %1</translation>
    </message>
    <message>
        <source>It was not imported; the log says why</source>
        <translation>Не импортирован; причина указана в журнале</translation>
    </message>
</context>
<context>
    <name>ImportText</name>
    <message>
        <source>Merging the recipes</source>
        <translation>Объединение рецептов</translation>
    </message>
</context>
<context>
    <name>IncomingFrame</name>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Conveyor</source>
        <translation>Конвейер</translation>
    </message>
    <message>
        <source>Corner that products lie in</source>
        <translation>Угол, в котором лежат изделия</translation>
    </message>
    <message>
        <source>Product on the conveyor</source>
        <translation>Изделие на конвейере</translation>
    </message>
    <message>
        <source>Direction of the conveyor</source>
        <translation>Направление конвейера</translation>
    </message>
    <message>
        <source>Way to the product</source>
        <translation>Путь к изделию</translation>
    </message>
    <message>
        <source>Enter point X</source>
        <translation>Точка входа X</translation>
    </message>
    <message>
        <source>Enter point Y</source>
        <translation>Точка входа Y</translation>
    </message>
    <message>
        <source>Enter point above</source>
        <translation>Точка входа выше</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Подход</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Along X</source>
        <translation>Вдоль X</translation>
    </message>
    <message>
        <source>Along Y</source>
        <translation>Вдоль Y</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>Used by all recipes with &quot;Shared tool&quot;. Touch the corner at the conveyor&apos;s end that products lie in with the tool; the pick point is the middle of the product.</source>
        <translation>Для всех рецептов с «Общим инструментом». Коснитесь инструментом угла в конце конвейера, в котором лежат изделия; точка захвата — середина изделия.</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>Точка захвата</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>Точка входа</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>Робот берёт каждое изделие в точке захвата.</translation>
    </message>
    <message>
        <source>Lengthwise</source>
        <translation>Вдоль</translation>
    </message>
    <message>
        <source>Crosswise</source>
        <translation>Поперёк</translation>
    </message>
</context>
<context>
    <name>ItemTableModel</name>
    <message>
        <source>Top</source>
        <translation>Верх</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Низ</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Лево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Право</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Верх слева</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Верх справа</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Низ слева</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Низ справа</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Центр</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>x
mm</source>
        <translation>x
mm</translation>
    </message>
    <message>
        <source>y
mm</source>
        <translation>y
mm</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Напр.</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>Number</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Allowed values</source>
        <translation>Допустимые значения</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Десятичная точка</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Сменить знак</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>Удалить последнюю цифру</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear the value</source>
        <translation>Очистить значение</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>от %1 до %2 %3</translation>
    </message>
    <message>
        <source>Not allowed. Enter %1.</source>
        <translation>Недопустимо. Введите %1.</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>Допустимо: %1</translation>
    </message>
</context>
<context>
    <name>LayerSeriesDialog</name>
    <message>
        <source>Layers in turn</source>
        <translation>Чередование слоёв</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>In turn with</source>
        <translation>Чередовать с</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>Sheet after every so many</source>
        <translation>Прокладка через каждые</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Где</translation>
    </message>
    <message>
        <source>What the stack will be</source>
        <translation>Каким будет штабель</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Mirrored left to right</source>
        <translation>Отражено слева направо</translation>
    </message>
    <message>
        <source>Mirrored front to back</source>
        <translation>Отражено спереди назад</translation>
    </message>
    <message>
        <source>Turned by half</source>
        <translation>Повёрнуто на 180°</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>From layer %1 on, replacing</source>
        <translation>Со слоя %1, с заменой</translation>
    </message>
</context>
<context>
    <name>LayerTableModel</name>
    <message>
        <source>Separator sheet</source>
        <translation>Прокладка</translation>
    </message>
    <message>
        <source>Empty (end of stack)</source>
        <translation>Пусто (конец штабеля)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>Шт.</translation>
    </message>
    <message>
        <source>From
mm</source>
        <translation>От
mm</translation>
    </message>
    <message>
        <source>To
mm</source>
        <translation>До
mm</translation>
    </message>
</context>
<context>
    <name>LayerText</name>
    <message>
        <source>is a separator sheet, but the recipe has separator sheets switched off</source>
        <translation>это прокладка, но в рецепте прокладки отключены</translation>
    </message>
    <message>
        <source>is a separator sheet, but the sheet has no height</source>
        <translation>это прокладка, но её высота не задана</translation>
    </message>
    <message>
        <source>has no pattern; this layer and those above it get no points</source>
        <translation>не выбрана схема укладки; этот слой и слои выше останутся без точек</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which this recipe does not have</source>
        <translation>используется схема «%1», которой нет в этом рецепте</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which holds no products</source>
        <translation>используется схема «%1», в которой нет изделий</translation>
    </message>
    <message>
        <source>Layer %1 %2.</source>
        <translation>Слой %1: %2.</translation>
    </message>
    <message>
        <source>The recipe has no layers.</source>
        <translation>В рецепте нет слоёв.</translation>
    </message>
    <message>
        <source>Layer %1 lies on an empty layer; the stack ends at its first empty layer, so only empty layers may follow it.</source>
        <translation>Слой %1 лежит на пустом слое; штабель кончается на первом пустом слое, и после него могут идти только пустые слои.</translation>
    </message>
</context>
<context>
    <name>LayersFrame</name>
    <message>
        <source>Layers from the pallet up</source>
        <translation>Слои от паллеты вверх</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>Ошибки в слоях</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>Итоги рецепта</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>План слоя</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Height offset</source>
        <translation>Смещение по высоте</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add a layer on top</source>
        <translation>Добавить слой сверху</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Insert before the chosen layer</source>
        <translation>Вставить перед выбранным слоем</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>No layer chosen</source>
        <translation>Слой не выбран</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>План</translation>
    </message>
    <message>
        <source>Show the plan of the layer instead of the stack</source>
        <translation>Показать план слоя вместо штабеля</translation>
    </message>
    <message>
        <source>Remove the chosen layers</source>
        <translation>Удалить выбранные слои</translation>
    </message>
    <message>
        <source>Place the chosen layers earlier</source>
        <translation>Уложить выбранные слои раньше</translation>
    </message>
    <message>
        <source>Place the chosen layers later</source>
        <translation>Уложить выбранные слои позже</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>Несколько</translation>
    </message>
    <message>
        <source>Choose several layers</source>
        <translation>Выбирать несколько слоёв</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Лист</translation>
    </message>
    <message>
        <source>Lay a separator sheet onto each chosen layer</source>
        <translation>Положить прокладку на каждый выбранный слой</translation>
    </message>
    <message>
        <source>Repeat the chosen layers on top</source>
        <translation>Повторить выбранные слои сверху</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Lay layers in turn, or mirror the chosen layers</source>
        <translation>Чередовать слои или отразить выбранные</translation>
    </message>
    <message>
        <source>Pattern of %1 layers</source>
        <translation>Схема слоёв: %1</translation>
    </message>
    <message>
        <source>Pattern of layer %1</source>
        <translation>Схема слоя %1</translation>
    </message>
    <message>
        <source>A recipe holds at most %1 layers.</source>
        <translation>В рецепте не более %1 слоёв.</translation>
    </message>
    <message>
        <source>There is a sheet already, or no box to lay it on.</source>
        <translation>Прокладка уже есть, или её не на что положить.</translation>
    </message>
    <message>
        <source>The chosen layers look the same then.</source>
        <translation>Выбранные слои от этого не изменятся.</translation>
    </message>
    <message>
        <source>Layers in turn...</source>
        <translation>Чередовать слои...</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Отразить слева направо</translation>
    </message>
    <message>
        <source>Mirror front to back</source>
        <translation>Отразить спереди назад</translation>
    </message>
    <message>
        <source>Turn by half</source>
        <translation>Повернуть на 180°</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Matrix (vertical)</source>
        <translation>Матрица (вертикально)</translation>
    </message>
    <message>
        <source>Matrix (horizontal)</source>
        <translation>Матрица (горизонтально)</translation>
    </message>
    <message>
        <source>Crisscross</source>
        <translation>Перекрёстная</translation>
    </message>
    <message>
        <source>Back letterform</source>
        <translation>Кольцевая</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>Число изделий больше 200</translation>
    </message>
</context>
<context>
    <name>LongWorkDialog</name>
    <message>
        <source>What is being done</source>
        <translation>Что выполняется</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Закрыть сообщение</translation>
    </message>
</context>
<context>
    <name>MoveToDialog</name>
    <message>
        <source>Target</source>
        <translation>Цель</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Оси</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>По прямой</translation>
    </message>
    <message>
        <source>Move on a straight line</source>
        <translation>Двигаться по прямой</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>По осям</translation>
    </message>
    <message>
        <source>Move joint by joint</source>
        <translation>Двигаться по осям</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>State of the move</source>
        <translation>Состояние движения</translation>
    </message>
    <message>
        <source>Share of the way</source>
        <translation>Пройденная часть пути</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Hold to move</source>
        <translation>Удерживать для движения</translation>
    </message>
    <message>
        <source>Hold to move the robot to the point</source>
        <translation>Удерживать для движения робота к точке</translation>
    </message>
    <message>
        <source>Move to the point: %1</source>
        <translation>Движение к точке: %1</translation>
    </message>
    <message>
        <source>Move to the point</source>
        <translation>Движение к точке</translation>
    </message>
    <message>
        <source>Target %1</source>
        <translation>Цель: %1</translation>
    </message>
    <message>
        <source>Present %1</source>
        <translation>Сейчас: %1</translation>
    </message>
    <message>
        <source>No controller. %1</source>
        <translation>Нет контроллера. %1</translation>
    </message>
    <message>
        <source>Nobody has taught this point.</source>
        <translation>Эта точка не обучена.</translation>
    </message>
    <message>
        <source>Hold the button to move. The way takes %1 s.</source>
        <translation>Удерживайте кнопку. Путь займёт %1 s.</translation>
    </message>
    <message>
        <source>Hold the button to move.</source>
        <translation>Удерживайте кнопку для движения.</translation>
    </message>
    <message>
        <source>The controller refuses the move: %1.</source>
        <translation>Контроллер отклоняет движение: %1.</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>Ожидание контроллера.</translation>
    </message>
    <message>
        <source>The robot moves. Let go to stop it.</source>
        <translation>Робот движется. Отпустите, чтобы остановить.</translation>
    </message>
    <message>
        <source>The robot is stopping.</source>
        <translation>Робот останавливается.</translation>
    </message>
    <message>
        <source>Stopped before the point.</source>
        <translation>Остановлен, не дойдя до точки.</translation>
    </message>
    <message>
        <source>Arrived.</source>
        <translation>Точка достигнута.</translation>
    </message>
    <message>
        <source>Tool in the pallet&apos;s frame</source>
        <translation>Инструмент в системе паллеты</translation>
    </message>
    <message>
        <source>Flange in the pallet&apos;s frame</source>
        <translation>Фланец в системе паллеты</translation>
    </message>
    <message>
        <source>Tool in the robot&apos;s base</source>
        <translation>Инструмент в базе робота</translation>
    </message>
    <message>
        <source>Flange in the robot&apos;s base</source>
        <translation>Фланец в базе робота</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Why the name is refused</source>
        <translation>Почему имя не принято</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NewPatternDialog</name>
    <message>
        <source>New pattern</source>
        <translation>Новая схема</translation>
    </message>
</context>
<context>
    <name>NodeBinder</name>
    <message>
        <source>%1 to %2 can be entered. The value stays as it was.</source>
        <translation>Можно ввести от %1 до %2. Значение осталось прежним.</translation>
    </message>
</context>
<context>
    <name>OrderTools</name>
    <message>
        <source>Begin at</source>
        <translation>Начать с</translation>
    </message>
    <message>
        <source>Corner at which the order begins</source>
        <translation>Угол, с которого начинается порядок</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>По рядам</translation>
    </message>
    <message>
        <source>Number row by row from the corner</source>
        <translation>Нумеровать по рядам от угла</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>По столбцам</translation>
    </message>
    <message>
        <source>Number column by column from the corner</source>
        <translation>Нумеровать по столбцам от угла</translation>
    </message>
    <message>
        <source>Outward</source>
        <translation>Наружу</translation>
    </message>
    <message>
        <source>Number outward from the corner</source>
        <translation>Нумеровать от угла наружу</translation>
    </message>
    <message>
        <source>By tapping</source>
        <translation>Касанием</translation>
    </message>
    <message>
        <source>Number the products as they are tapped</source>
        <translation>Нумеровать изделия в порядке касания</translation>
    </message>
    <message>
        <source>Place the product earlier</source>
        <translation>Уложить изделие раньше</translation>
    </message>
    <message>
        <source>Place the product later</source>
        <translation>Уложить изделие позже</translation>
    </message>
    <message>
        <source>Propose sides</source>
        <translation>Предложить стороны</translation>
    </message>
    <message>
        <source>Let products come from their open sides</source>
        <translation>Подводить изделия с открытых сторон</translation>
    </message>
    <message>
        <source>Blocked ways</source>
        <translation>Занятые пути</translation>
    </message>
    <message>
        <source>Show the ways of products that hit others</source>
        <translation>Показать пути изделий, задевающих другие</translation>
    </message>
    <message>
        <source>Back to the product placed before</source>
        <translation>К предыдущему изделию</translation>
    </message>
    <message>
        <source>Product that is being placed</source>
        <translation>Укладываемое изделие</translation>
    </message>
    <message>
        <source>On to the product placed next</source>
        <translation>К следующему изделию</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Верх слева</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Верх справа</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Низ слева</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Низ справа</translation>
    </message>
    <message>
        <source>Tap product %1 of %2</source>
        <translation>Коснитесь изделия %1 из %2</translation>
    </message>
    <message>
        <source>Walk through the placing</source>
        <translation>Пройти укладку по шагам</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 из %2: %3</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Раньше</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
</context>
<context>
    <name>PalletFrame</name>
    <message>
        <source>Pallet</source>
        <translation>Паллета</translation>
    </message>
    <message>
        <source>Standard size</source>
        <translation>Стандартный размер</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Масса</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Отступы</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Лево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Право</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Верх</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Низ</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>Прокладки</translation>
    </message>
    <message>
        <source>Sheet length</source>
        <translation>Длина листа</translation>
    </message>
    <message>
        <source>Sheet width</source>
        <translation>Ширина листа</translation>
    </message>
    <message>
        <source>Sheet height</source>
        <translation>Толщина листа</translation>
    </message>
    <message>
        <source>Sheet weight</source>
        <translation>Масса листа</translation>
    </message>
    <message>
        <source>Place in the cell</source>
        <translation>Место в ячейке</translation>
    </message>
    <message>
        <source>Pallet place</source>
        <translation>Место паллеты</translation>
    </message>
    <message>
        <source>Post height</source>
        <translation>Высота стоек</translation>
    </message>
    <message>
        <source>Shared tool</source>
        <translation>Общий инструмент</translation>
    </message>
    <message>
        <source>Use the tool shared by all recipes</source>
        <translation>Использовать инструмент, общий для всех рецептов</translation>
    </message>
    <message>
        <source>Corner posts</source>
        <translation>Стойки</translation>
    </message>
    <message>
        <source>The pallet has corner posts</source>
        <translation>У паллеты есть угловые стойки</translation>
    </message>
    <message>
        <source>Shared work object</source>
        <translation>Общий рабочий объект</translation>
    </message>
    <message>
        <source>Use the work object shared by all recipes</source>
        <translation>Использовать рабочий объект, общий для всех рецептов</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Свой размер</translation>
    </message>
</context>
<context>
    <name>PalletPlaceFrame</name>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Pallet frame</source>
        <translation>Система паллеты</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>Shift along X</source>
        <translation>Сдвиг вдоль X</translation>
    </message>
    <message>
        <source>Shift along Y</source>
        <translation>Сдвиг вдоль Y</translation>
    </message>
    <message>
        <source>Where the pallet lies</source>
        <translation>Где лежит паллета</translation>
    </message>
    <message>
        <source>Shared pallet frames</source>
        <translation>Общие системы паллет</translation>
    </message>
    <message>
        <source>Pallets lie from their origin</source>
        <translation>Паллеты лежат от начала</translation>
    </message>
    <message>
        <source>Length of the taught box</source>
        <translation>Длина коробки обучения</translation>
    </message>
    <message>
        <source>Width of the taught box</source>
        <translation>Ширина коробки обучения</translation>
    </message>
    <message>
        <source>Calibrate by one point</source>
        <translation>Калибровать по одной точке</translation>
    </message>
    <message>
        <source>Three points</source>
        <translation>Три точки</translation>
    </message>
    <message>
        <source>One point</source>
        <translation>Одна точка</translation>
    </message>
    <message>
        <source>Against the robot&apos;s X</source>
        <translation>Против X робота</translation>
    </message>
    <message>
        <source>Along the robot&apos;s X</source>
        <translation>Вдоль X робота</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Point on X</source>
        <translation>Точка на X</translation>
    </message>
    <message>
        <source>Point towards Y</source>
        <translation>Точка в сторону Y</translation>
    </message>
    <message>
        <source>Origin, left</source>
        <translation>Начало, слева</translation>
    </message>
    <message>
        <source>Origin, right</source>
        <translation>Начало, справа</translation>
    </message>
    <message>
        <source>Touch the pallet&apos;s origin with the tool: its axes run as the robot&apos;s.</source>
        <translation>Коснитесь инструментом начала паллеты: её оси идут как у робота.</translation>
    </message>
    <message>
        <source>Touch the points with the tool: the origin, one along the pallet&apos;s length, one across it.</source>
        <translation>Коснитесь точек инструментом: начало, одна вдоль длины паллеты, одна поперёк.</translation>
    </message>
    <message>
        <source>Not calibrated: the positions count from the robot&apos;s foot.</source>
        <translation>Не откалибровано: положения отсчитываются от основания робота.</translation>
    </message>
    <message>
        <source>Origin at X %1, Y %2, Z %3 mm, turned by %4°.</source>
        <translation>Начало X %1, Y %2, Z %3 мм, поворот %4°.</translation>
    </message>
    <message>
        <source>It comes from the recipe&apos;s tool record.</source>
        <translation>Взято из записи инструмента рецепта.</translation>
    </message>
    <message>
        <source>The shared work objects are not in use: they have to be calibrated by one point.</source>
        <translation>Общие рабочие объекты не действуют: их нужно откалибровать по одной точке.</translation>
    </message>
    <message>
        <source>Choose how both pallets lie: they have to lie alike.</source>
        <translation>Выберите, как лежат обе паллеты: они должны лежать одинаково.</translation>
    </message>
    <message>
        <source>Shared by all recipes on these work objects. Hold a box in the pallet&apos;s inner corner, from which it lies as chosen here, and teach it.</source>
        <translation>Общее для всех рецептов на этих рабочих объектах. Удерживайте коробку во внутреннем углу паллеты, от которого она лежит, как выбрано здесь, и обучите точку.</translation>
    </message>
</context>
<context>
    <name>Palx</name>
    <message>
        <source>W-Palletizing</source>
        <translation>W-Укладка</translation>
    </message>
</context>
<context>
    <name>ParameterSettingsWizard</name>
    <message>
        <source>Product and pallet</source>
        <translation>Изделие и паллета</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>Паллета</translation>
    </message>
</context>
<context>
    <name>PatternListModel</name>
    <message>
        <source>In %1 layers</source>
        <translation>В слоях: %1</translation>
    </message>
</context>
<context>
    <name>PatternNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Letters, digits, &quot;_&quot; and &quot;-&quot;; at most 32.</source>
        <translation>Латинские буквы, цифры, «_» и «-»; не более 32.</translation>
    </message>
    <message>
        <source>Clone of the present pattern</source>
        <translation>Копия текущей схемы</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>предупреждение</translation>
    </message>
    <message>
        <source>Clone of pattern %1</source>
        <translation>Копия схемы %1</translation>
    </message>
</context>
<context>
    <name>PatternTemplateDialog</name>
    <message>
        <source>Pattern Template</source>
        <translation>Шаблон схемы</translation>
    </message>
    <message>
        <source>Tempalte</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Kind of template</source>
        <translation>Вид шаблона</translation>
    </message>
    <message>
        <source>X Number:</source>
        <translation>Число X:</translation>
    </message>
    <message>
        <source>Y Number:</source>
        <translation>Число Y:</translation>
    </message>
    <message>
        <source>Y1 Number:</source>
        <translation>Число Y1:</translation>
    </message>
    <message>
        <source>Y2 Number:</source>
        <translation>Число Y2:</translation>
    </message>
    <message>
        <source>X Offset(mm):</source>
        <translation>Смещение X (mm):</translation>
    </message>
    <message>
        <source>Y Offset(mm):</source>
        <translation>Смещение Y (mm):</translation>
    </message>
    <message>
        <source>X Space(mm):</source>
        <translation>Зазор X (mm):</translation>
    </message>
    <message>
        <source>Y Space(mm):</source>
        <translation>Зазор Y (mm):</translation>
    </message>
    <message>
        <source>How the template lays products</source>
        <translation>Как шаблон кладёт изделия</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>Рядами</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Крестом</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Вертушкой</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>предупреждение</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Name is empty!</source>
        <translation>Имя не задано!</translation>
    </message>
    <message>
        <source>Pattern name length is greater than 32!</source>
        <translation>Имя схемы длиннее 32 символов!</translation>
    </message>
    <message>
        <source>Only letters, digits, &quot;_&quot; and &quot;-&quot; are allowed in a pattern&apos;s name.</source>
        <translation>В имени схемы допустимы только буквы, цифры, «_» и «-».</translation>
    </message>
    <message>
        <source>Name is repeated!</source>
        <translation>Такое имя уже есть!</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by layer %2.</source>
        <translation>Схема «%1» используется слоем %2.</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by the layers %2.</source>
        <translation>Схема «%1» используется слоями %2.</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by %2 layers: %3, ...</source>
        <translation>Схема «%1» используется слоями (%2): %3, ...</translation>
    </message>
</context>
<context>
    <name>PatternsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новая</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копия</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>План схемы</translation>
    </message>
    <message>
        <source>Products of the pattern</source>
        <translation>Изделия схемы</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Напр.</translation>
    </message>
    <message>
        <source>x (across)</source>
        <translation>x (поперёк)</translation>
    </message>
    <message>
        <source>y (along)</source>
        <translation>y (вдоль)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>dz</source>
        <translation>dz</translation>
    </message>
    <message>
        <source>Copy of pattern %1</source>
        <translation>Копия схемы %1</translation>
    </message>
    <message>
        <source>New name for pattern %1</source>
        <translation>Новое имя схемы %1</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Изделие %1</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>Изделие не выбрано</translation>
    </message>
    <message>
        <source>The recipe was closed.</source>
        <translation>Рецепт закрыт.</translation>
    </message>
    <message>
        <source>Delete pattern</source>
        <translation>Удаление схемы</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products.</source>
        <translation>Схема вмещает не более %1 изделий.</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>Взять размер</translation>
    </message>
    <message>
        <source>Give every product the size of the recipe&apos;s product</source>
        <translation>Задать всем изделиям размер изделия рецепта</translation>
    </message>
    <message>
        <source>Make, rename and delete patterns</source>
        <translation>Создание, переименование и удаление схем</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Изделия</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Tools for editing the plan</source>
        <translation>Инструменты правки плана</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>Order and sides of placing</source>
        <translation>Порядок и стороны укладки</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Check of the pattern</source>
        <translation>Проверка схемы</translation>
    </message>
    <message>
        <source>What is chosen or wrong on the plan</source>
        <translation>Что выбрано или неверно на плане</translation>
    </message>
    <message>
        <source>Show the whole plan</source>
        <translation>Показать весь план</translation>
    </message>
    <message>
        <source>Figures of the pattern</source>
        <translation>Данные схемы</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (слоёв: %2)</translation>
    </message>
    <message>
        <source>1 product</source>
        <translation>1 изделие</translation>
    </message>
    <message>
        <source>%1 products</source>
        <translation>Изделий: %1</translation>
    </message>
    <message>
        <source>This recipe has no pattern yet.</source>
        <translation>В этом рецепте ещё нет схем.</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>Выбрано изделий: %1</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>Проверка %1</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>Add products by a template</source>
        <translation>Добавить изделия по шаблону</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Fill the pattern by an automatic layout</source>
        <translation>Заполнить схему автоматической раскладкой</translation>
    </message>
    <message>
        <source>Patterns of the recipe</source>
        <translation>Схемы рецепта</translation>
    </message>
    <message>
        <source>Delete the pattern %1?</source>
        <translation>Удалить схему %1?</translation>
    </message>
</context>
<context>
    <name>PlanarNestingWizard</name>
    <message>
        <source>Patterns</source>
        <translation>Схемы</translation>
    </message>
    <message>
        <source>Products in a layer</source>
        <translation>Изделия в слое</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>Направления подвода</translation>
    </message>
</context>
<context>
    <name>PointGroup</name>
    <message>
        <source>Point</source>
        <translation>Точка</translation>
    </message>
    <message>
        <source>State of the point</source>
        <translation>Состояние точки</translation>
    </message>
    <message>
        <source>Enter the values of the point by hand</source>
        <translation>Ввести значения точки вручную</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear the point</source>
        <translation>Очистить точку</translation>
    </message>
    <message>
        <source>All zero</source>
        <translation>Все нули</translation>
    </message>
    <message>
        <source>Not taught</source>
        <translation>Не обучена</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Рассчитана</translation>
    </message>
    <message>
        <source>Taught</source>
        <translation>Обучена</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>Обучить</translation>
    </message>
    <message>
        <source>Teach the point where the robot stands</source>
        <translation>Обучить точку по положению робота</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>Move the robot to the point</source>
        <translation>Переместить робота к точке</translation>
    </message>
    <message>
        <source>The controller is not connected: where the robot stands is not known.</source>
        <translation>Контроллер не подключён: положение робота неизвестно.</translation>
    </message>
    <message>
        <source>The robot is moving. Teach the point when it stands.</source>
        <translation>Робот движется. Обучите точку, когда он остановится.</translation>
    </message>
    <message>
        <source>The controller does not tell where the robot stands.</source>
        <translation>Контроллер не сообщает положение робота.</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Enter</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Подход</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Укладка</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Захват</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>Отвод</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Точка</translation>
    </message>
    <message>
        <source>X
mm</source>
        <translation>X
mm</translation>
    </message>
    <message>
        <source>Y
mm</source>
        <translation>Y
mm</translation>
    </message>
    <message>
        <source>Z
mm</source>
        <translation>Z
mm</translation>
    </message>
</context>
<context>
    <name>PointText</name>
    <message>
        <source>The place point is not taught.</source>
        <translation>Точка укладки не обучена.</translation>
    </message>
    <message>
        <source>The enter point of the place side is not taught.</source>
        <translation>Точка входа на стороне укладки не обучена.</translation>
    </message>
    <message>
        <source>The pallet place is neither left nor right, so all place positions will be 0.</source>
        <translation>Место паллеты не левое и не правое, поэтому все положения укладки будут 0.</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the left pallet is not taught.</source>
        <translation>Начальная точка общего рабочего объекта левой паллеты не обучена.</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the right pallet is not taught.</source>
        <translation>Начальная точка общего рабочего объекта правой паллеты не обучена.</translation>
    </message>
    <message>
        <source>The corner of the product on the conveyor is not taught.</source>
        <translation>Угол изделия на конвейере не обучен.</translation>
    </message>
    <message>
        <source>The pick point is not taught.</source>
        <translation>Точка захвата не обучена.</translation>
    </message>
    <message>
        <source>The enter point of the pick side is not taught.</source>
        <translation>Точка входа на стороне захвата не обучена.</translation>
    </message>
    <message>
        <source>The shared work objects are not both calibrated by one point, so the place positions lie around the robot&apos;s foot.</source>
        <translation>Общие рабочие объекты не откалиброваны оба по одной точке, поэтому точки укладки окажутся у основания робота.</translation>
    </message>
    <message>
        <source>The pallet&apos;s place is not calibrated, so the place positions lie around the robot&apos;s foot.</source>
        <translation>Место поддона не откалибровано, поэтому точки укладки окажутся у основания робота.</translation>
    </message>
    <message>
        <source>The shared tool is not measured, so the flange is taken for it.</source>
        <translation>Общий инструмент не измерен, вместо него берётся фланец.</translation>
    </message>
    <message>
        <source>The recipe&apos;s tool is not measured, so the flange is taken for it.</source>
        <translation>Инструмент рецепта не измерен, вместо него берётся фланец.</translation>
    </message>
    <message>
        <source>The ready height of the place side, %1 mm, is less than the product&apos;s height, %2 mm: what comes straight from above could hit the products beside its place.</source>
        <translation>Высота ожидания стороны укладки, %1 mm, меньше высоты изделия, %2 mm: то, что опускается прямо сверху, может задеть соседние изделия.</translation>
    </message>
</context>
<context>
    <name>PointsFrame</name>
    <message>
        <source>Generate points</source>
        <translation>Рассчитать точки</translation>
    </message>
    <message>
        <source>State of the points</source>
        <translation>Состояние точек</translation>
    </message>
    <message>
        <source>Layer to show</source>
        <translation>Показываемый слой</translation>
    </message>
    <message>
        <source>Kind of point to show</source>
        <translation>Вид показываемых точек</translation>
    </message>
    <message>
        <source>Number of points shown</source>
        <translation>Число показанных точек</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>Копировать таблицу в буфер обмена</translation>
    </message>
    <message>
        <source>Generated points</source>
        <translation>Рассчитанные точки</translation>
    </message>
    <message>
        <source>All layers</source>
        <translation>Все слои</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>Сторона захвата</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Слой %1</translation>
    </message>
    <message>
        <source>All points</source>
        <translation>Все точки</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>Точек: %1</translation>
    </message>
    <message>
        <source>No points have been generated yet.</source>
        <translation>Точки ещё не рассчитаны.</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>Рецепт или общие настройки изменены: рассчитайте точки заново.</translation>
    </message>
    <message>
        <source>The points are up to date.</source>
        <translation>Точки актуальны.</translation>
    </message>
    <message>
        <source>Points copied: %1</source>
        <translation>Скопировано точек: %1</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>Move the robot to the chosen point</source>
        <translation>Переместить робота к выбранной точке</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Result of the check</source>
        <translation>Результат проверки</translation>
    </message>
    <message>
        <source>What is wrong with the pattern</source>
        <translation>Что неверно в схеме</translation>
    </message>
    <message>
        <source>Nothing is wrong with the pattern.</source>
        <translation>Ошибок в схеме нет.</translation>
    </message>
    <message>
        <source>One thing is wrong. Touch it to choose its products.</source>
        <translation>Одна ошибка. Коснитесь её, чтобы выбрать изделия.</translation>
    </message>
    <message>
        <source>%1 things are wrong. Touch one to choose its products.</source>
        <translation>Ошибок: %1. Коснитесь одной, чтобы выбрать изделия.</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Products %1 and %2 overlap by %3 mm.</source>
        <translation>Изделия %1 и %2 перекрываются на %3 mm.</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm over the pallet.</source>
        <translation>Изделие %1 выступает за паллету на %2 mm.</translation>
    </message>
    <message>
        <source>%1 of %2 products have another size than the recipe&apos;s product.</source>
        <translation>%1 из %2 изделий отличаются размером от изделия рецепта.</translation>
    </message>
    <message>
        <source>Product %1 was stored with a value that cannot be used.</source>
        <translation>Изделие %1 сохранено с недопустимым значением.</translation>
    </message>
    <message>
        <source>Products %1 and %2 lie in the same place.</source>
        <translation>Изделия %1 и %2 лежат на одном месте.</translation>
    </message>
    <message>
        <source>Product %1 hits product %2 on its way in, by %3 mm.</source>
        <translation>Изделие %1 по пути задевает изделие %2 на %3 mm.</translation>
    </message>
    <message>
        <source>Products %1 and %2 are %3 mm apart, less than %4 mm.</source>
        <translation>Между изделиями %1 и %2 только %3 mm, меньше %4 mm.</translation>
    </message>
    <message>
        <source>Product %1 has the unknown direction &quot;%2&quot;: it comes from above.</source>
        <translation>У изделия %1 неизвестное направление «%2»: оно опускается сверху.</translation>
    </message>
    <message>
        <source>The numbers of %1 products do not follow the order of placing.</source>
        <translation>Номера изделий не следуют порядку укладки, всего: %1.</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm into the margin.</source>
        <translation>Изделие %1 заходит в отступ на %2 mm.</translation>
    </message>
    <message>
        <source>There are %1 products; the controller takes at most %2 in a pattern.</source>
        <translation>Изделий: %1; контроллер принимает не более %2 в схеме.</translation>
    </message>
    <message>
        <source>Only the first %1 products are shown.</source>
        <translation>Показаны только первые изделия: %1.</translation>
    </message>
</context>
<context>
    <name>ProductFrame</name>
    <message>
        <source>Size and weight</source>
        <translation>Размер и масса</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Масса</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Укладка</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>Orientation code</source>
        <translation>Ориентация</translation>
    </message>
    <message>
        <source>Along (dx)</source>
        <translation>Вдоль (dx)</translation>
    </message>
    <message>
        <source>Across (dy)</source>
        <translation>Поперёк (dy)</translation>
    </message>
    <message>
        <source>Lift (dz)</source>
        <translation>Подъём (dz)</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>Рисунок рецепта</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>Итоги рецепта</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Task</source>
        <translation>Задача</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
</context>
<context>
    <name>ProjectManager</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>К предыдущей странице</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>Менеджер проектов</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>State of the project</source>
        <translation>Состояние проекта</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Что выполняется</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>Имя проекта</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Копия</translation>
    </message>
    <message>
        <source>Copy the chosen project&apos;s files</source>
        <translation>Скопировать файлы выбранного проекта</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Задачи</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Переменные</translation>
    </message>
    <message>
        <source>Tasks and their program files</source>
        <translation>Задачи и их файлы программ</translation>
    </message>
    <message>
        <source>Shown program file</source>
        <translation>Показанный файл программы</translation>
    </message>
    <message>
        <source>Program text</source>
        <translation>Текст программы</translation>
    </message>
    <message>
        <source>Whose variables are shown</source>
        <translation>Чьи переменные показаны</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add a project</source>
        <translation>Добавить проект</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Edit the project</source>
        <translation>Изменить проект</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove the project</source>
        <translation>Удалить проект</translation>
    </message>
    <message>
        <source>Set Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Load the project when the controller starts</source>
        <translation>Загружать проект при запуске контроллера</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Загрузить заново</translation>
    </message>
    <message>
        <source>Switch to the project</source>
        <translation>Перейти к проекту</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>Edit Project</source>
        <translation>Изменение проекта</translation>
    </message>
    <message>
        <source>Preparing data...</source>
        <translation>Подготовка данных...</translation>
    </message>
    <message>
        <source>Connect the controller first</source>
        <translation>Сначала подключите контроллер</translation>
    </message>
    <message>
        <source>No project is current.</source>
        <translation>Текущего проекта нет.</translation>
    </message>
    <message>
        <source>Variables of the current project: %1</source>
        <translation>Переменные текущего проекта: %1</translation>
    </message>
    <message>
        <source>Current, loaded at start-up</source>
        <translation>Текущий, загружается при запуске</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Текущий</translation>
    </message>
    <message>
        <source>Loaded at start-up</source>
        <translation>Загружается при запуске</translation>
    </message>
    <message>
        <source>Not current</source>
        <translation>Не текущий</translation>
    </message>
    <message>
        <source>Touch a program file to look at it.</source>
        <translation>Коснитесь файла программы, чтобы открыть его.</translation>
    </message>
    <message>
        <source>: the file cannot be read</source>
        <translation>: файл не читается</translation>
    </message>
    <message>
        <source>: empty</source>
        <translation>: пуст</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>Импорт проектов</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>Экспорт проектов</translation>
    </message>
</context>
<context>
    <name>ProjectParamSetupPage</name>
    <message>
        <source>Scheme layout</source>
        <translation>Компоновка</translation>
    </message>
    <message>
        <source>Single Line - Left</source>
        <translation>Одна линия - слева</translation>
    </message>
    <message>
        <source>Single Line - Right</source>
        <translation>Одна линия - справа</translation>
    </message>
    <message>
        <source>Single Line - Both</source>
        <translation>Одна линия - обе</translation>
    </message>
    <message>
        <source>Double Line - Both</source>
        <translation>Две линии - обе</translation>
    </message>
    <message>
        <source>Palletizing type</source>
        <translation>Вид укладки</translation>
    </message>
    <message>
        <source>Palletizing</source>
        <translation>Паллетирование</translation>
    </message>
    <message>
        <source>Depalletizing</source>
        <translation>Депаллетирование</translation>
    </message>
    <message>
        <source>Type of sucker</source>
        <translation>Вид присоски</translation>
    </message>
    <message>
        <source>Single Suction</source>
        <translation>Одна присоска</translation>
    </message>
    <message>
        <source>Double Suction</source>
        <translation>Две присоски</translation>
    </message>
    <message>
        <source>Lift platform</source>
        <translation>Подъёмная колонна</translation>
    </message>
    <message>
        <source>With Bollard</source>
        <translation>С колонной</translation>
    </message>
    <message>
        <source>Without Bollard</source>
        <translation>Без колонны</translation>
    </message>
    <message>
        <source>Other accessories</source>
        <translation>Прочее оснащение</translation>
    </message>
    <message>
        <source>With Clapboard</source>
        <translation>С прокладкой</translation>
    </message>
    <message>
        <source>Without Clapboard</source>
        <translation>Без прокладки</translation>
    </message>
    <message>
        <source>Left Recipe</source>
        <translation>Левый рецепт</translation>
    </message>
    <message>
        <source>Right Recipe</source>
        <translation>Правый рецепт</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>The scheme layout and the bollard, which is the lift column, choose the robot programs. The other choices are kept with the project.</source>
        <translation>Программы робота зависят от компоновки и колонны. Остальной выбор хранится с проектом.</translation>
    </message>
    <message>
        <source>There are no robot programs for this layout: they stay empty, and the robot does not move.</source>
        <translation>Для этой компоновки нет программ робота: они останутся пустыми, и робот не двинется.</translation>
    </message>
</context>
<context>
    <name>RecipeEditing</name>
    <message>
        <source>The margins left no room for a product and were set to 0.</source>
        <translation>Отступы не оставляли места для изделия и сброшены в 0.</translation>
    </message>
</context>
<context>
    <name>RecipeFates</name>
    <message>
        <source>pick points</source>
        <translation>точки захвата</translation>
    </message>
    <message>
        <source>corner posts</source>
        <translation>угловые стойки</translation>
    </message>
    <message>
        <source>pallet side</source>
        <translation>сторона паллеты</translation>
    </message>
    <message>
        <source>choice of tool</source>
        <translation>выбор инструмента</translation>
    </message>
    <message>
        <source>choice of work object</source>
        <translation>выбор рабочего объекта</translation>
    </message>
    <message>
        <source>automatic layout</source>
        <translation>автоукладка</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>отступы</translation>
    </message>
    <message>
        <source>Is left out</source>
        <translation>Не берётся</translation>
    </message>
    <message>
        <source>Skipped: row %1 has the name</source>
        <translation>Пропуск: имя занято строкой %1</translation>
    </message>
    <message>
        <source>Skipped: the name is taken</source>
        <translation>Пропуск: имя занято</translation>
    </message>
    <message>
        <source>Skipped: row %1 replaces it</source>
        <translation>Пропуск: заменит строка %1</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>Новый рецепт</translation>
    </message>
    <message>
        <source>Row %1 has the name: becomes &quot;%2&quot;</source>
        <translation>Имя занято строкой %1: станет «%2»</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>Переименован в «%1»</translation>
    </message>
    <message>
        <source>Replaces no. %1 and stands at no. %2</source>
        <translation>Заменит № %1, станет № %2</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>Usual values for: %1</source>
        <translation>Обычные значения: %1</translation>
    </message>
</context>
<context>
    <name>RecipeFrame</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>ещё %n</numerusform>
            <numerusform>ещё %n</numerusform>
            <numerusform>ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecipeMatchModel</name>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Панель</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Контроллер</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>%1 places, %2 layers</source>
        <translation>мест: %1, слоёв: %2</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Совпадает</translation>
    </message>
    <message>
        <source>At place %1</source>
        <translation>На месте %1</translation>
    </message>
    <message>
        <source>Other points</source>
        <translation>Другие точки</translation>
    </message>
    <message>
        <source>Missing there</source>
        <translation>Там нет</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>Только там</translation>
    </message>
</context>
<context>
    <name>RecipeText</name>
    <message>
        <source>The name is empty.</source>
        <translation>Имя не задано.</translation>
    </message>
    <message>
        <source>The name begins or ends with a blank.</source>
        <translation>Имя начинается или кончается пробелом.</translation>
    </message>
    <message>
        <source>The name has %1 characters; at most %2 are allowed.</source>
        <translation>В имени символов: %1; допускается не более %2.</translation>
    </message>
    <message>
        <source>The name holds a line break or another control character.</source>
        <translation>В имени есть перевод строки или другой управляющий символ.</translation>
    </message>
    <message>
        <source>There is a recipe &quot;%1&quot; already.</source>
        <translation>Рецепт «%1» уже есть.</translation>
    </message>
</context>
<context>
    <name>RecipeTexts</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2
Product: %3
Pallet: %4</source>
        <translation>Коробок: %1, слоёв: %2
Изделие: %3
Паллета: %4</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2</source>
        <translation>Коробок: %1, слоёв: %2</translation>
    </message>
    <message>
        <source>Separator sheets: %1</source>
        <translation>Прокладок: %1</translation>
    </message>
    <message>
        <source>Height: %1 mm (load %2 mm)</source>
        <translation>Высота: %1 mm (груз %2 mm)</translation>
    </message>
    <message>
        <source>Weight: %1 kg (load %2 kg)</source>
        <translation>Масса: %1 kg (груз %2 kg)</translation>
    </message>
</context>
<context>
    <name>RecipeWizard</name>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Страница</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>Отменить последнюю правку</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>Повторить отменённую правку</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Cancel and take the edits back</source>
        <translation>Отменить и вернуть всё как было</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>К предыдущей странице</translation>
    </message>
    <message>
        <source>Take back all edits?</source>
        <translation>Отменить все правки?</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 из %2: %3</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>%1 x %2 x %3 mm</source>
        <translation>%1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>%1 kg</source>
        <translation>%1 kg</translation>
    </message>
    <message>
        <source>Separator sheet</source>
        <translation>Прокладка</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пусто</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>%1, %2 of them shown</source>
        <translation>%1, из них показано %2</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Изделия</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>%1/%2 by %3 mm</source>
        <translation>%1/%2 на %3 mm</translation>
    </message>
    <message>
        <source>Overlap: %1 and %2 more</source>
        <translation>Перекрытие: %1 и ещё %2</translation>
    </message>
    <message>
        <source>Overlap: %1</source>
        <translation>Перекрытие: %1</translation>
    </message>
    <message>
        <source>%1 %2 mm</source>
        <translation>%1 %2 mm</translation>
    </message>
    <message>
        <source>top</source>
        <translation>сверху</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>снизу</translation>
    </message>
    <message>
        <source>left</source>
        <translation>слева</translation>
    </message>
    <message>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <source>Over the pallet: %1</source>
        <translation>За паллетой: %1</translation>
    </message>
    <message>
        <source>Products with missing or unreadable values: %1</source>
        <translation>Изделий с отсутствующими или нечитаемыми значениями: %1</translation>
    </message>
    <message>
        <source>Products with impossible sizes or positions: %1</source>
        <translation>Изделий с невозможными размерами или положениями: %1</translation>
    </message>
    <message>
        <source>Products with an unknown direction: %1</source>
        <translation>Изделий с неизвестным направлением: %1</translation>
    </message>
    <message>
        <source>Products whose number is not their place in the order: %1</source>
        <translation>Изделий, номер которых не совпадает с порядком: %1</translation>
    </message>
    <message>
        <source>The product&apos;s size is not valid</source>
        <translation>Недопустимый размер изделия</translation>
    </message>
    <message>
        <source>The pallet&apos;s size is not valid</source>
        <translation>Недопустимый размер паллеты</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>Паллета</translation>
    </message>
    <message>
        <source>Load of the layer</source>
        <translation>Груз слоя</translation>
    </message>
    <message>
        <source>Height over the deck</source>
        <translation>Высота над настилом</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>от %1 до %2 mm</translation>
    </message>
    <message>
        <source>Layers of products</source>
        <translation>Слои изделий</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>Прокладки</translation>
    </message>
    <message>
        <source>Height with the pallet</source>
        <translation>Высота с паллетой</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Weight with the pallet</source>
        <translation>Масса с паллетой</translation>
    </message>
</context>
<context>
    <name>RunFrame</name>
    <message>
        <source>Why no side is shown</source>
        <translation>Почему стороны не показаны</translation>
    </message>
    <message>
        <source>Make a project for these recipes</source>
        <translation>Создать проект для этих рецептов</translation>
    </message>
    <message>
        <source>There is no connection to the controller.</source>
        <translation>Нет связи с контроллером.</translation>
    </message>
    <message>
        <source>There are no recipes yet. Make one on the page &quot;Recipes&quot;.</source>
        <translation>Рецептов ещё нет. Создайте рецепт на странице «Рецепты».</translation>
    </message>
    <message>
        <source>No robot project is in use. Make one here, or choose one on the page &quot;Projects&quot;.</source>
        <translation>Проект не загружен. Создайте его здесь или выберите на странице «Проекты».</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>Ожидание контроллера.</translation>
    </message>
    <message>
        <source>The controller did not take it: %1</source>
        <translation>Контроллер не принял: %1</translation>
    </message>
    <message>
        <source>The controller holds the recipe &quot;%1&quot; otherwise. Send the recipes first.</source>
        <translation>В контроллере другой рецепт «%1». Сначала отправьте рецепты.</translation>
    </message>
    <message>
        <source>Start the left side at</source>
        <translation>Начать левую сторону с</translation>
    </message>
    <message>
        <source>Start the right side at</source>
        <translation>Начать правую сторону с</translation>
    </message>
    <message>
        <source>Recipe &quot;%1&quot;</source>
        <translation>Рецепт «%1»</translation>
    </message>
    <message>
        <source>The left side broke off</source>
        <translation>Левая сторона прервана</translation>
    </message>
    <message>
        <source>The right side broke off</source>
        <translation>Правая сторона прервана</translation>
    </message>
    <message>
        <source>Clear the gripper, look at the pallet, and confirm the box to go on with. It is proposed by the counters and by what lies there.</source>
        <translation>Освободите захват, осмотрите паллету и подтвердите, с какой коробки продолжить. Она предложена по счётчикам и по уложенному.</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the left side to 0? Layer and piece stay as they are.</source>
        <translation>Обнулить паллеты и время цикла левой стороны? Слой и изделие не изменятся.</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the right side to 0? Layer and piece stay as they are.</source>
        <translation>Обнулить паллеты и время цикла правой стороны? Слой и изделие не изменятся.</translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation>Сброс счётчиков</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Начать здесь</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>RunSideCard</name>
    <message>
        <source>State of the side</source>
        <translation>Состояние стороны</translation>
    </message>
    <message>
        <source>Recipe of the side</source>
        <translation>Рецепт стороны</translation>
    </message>
    <message>
        <source>What lies on the pallet</source>
        <translation>Что лежит на паллете</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>Шт.</translation>
    </message>
    <message>
        <source>Boxes on the pallet</source>
        <translation>Коробок на паллете</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Piece of the layer</source>
        <translation>Изделие слоя</translation>
    </message>
    <message>
        <source>Pallets</source>
        <translation>Паллеты</translation>
    </message>
    <message>
        <source>Finished pallets</source>
        <translation>Готовые паллеты</translation>
    </message>
    <message>
        <source>Cycle time</source>
        <translation>Время цикла</translation>
    </message>
    <message>
        <source>Per hour</source>
        <translation>В час</translation>
    </message>
    <message>
        <source>Boxes per hour</source>
        <translation>Коробок в час</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>Enable or disable the side</source>
        <translation>Включить или выключить сторону</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>Начать с</translation>
    </message>
    <message>
        <source>Start at a layer and piece</source>
        <translation>Начать со слоя и изделия</translation>
    </message>
    <message>
        <source>Reset the counters</source>
        <translation>Сбросить счётчики</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>Нет контроллера</translation>
    </message>
    <message>
        <source>Not in this project</source>
        <translation>Не в этом проекте</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Авария</translation>
    </message>
    <message>
        <source>Broken off: confirm layer and piece</source>
        <translation>Прервано: подтвердите слой и изделие</translation>
    </message>
    <message>
        <source>Pallet full: exchange and confirm it</source>
        <translation>Паллета полна: замените и подтвердите</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Enabled, no program runs</source>
        <translation>Включена, программа не идёт</translation>
    </message>
    <message>
        <source>Robot is moved by hand</source>
        <translation>Робот ведётся вручную</translation>
    </message>
    <message>
        <source>Stacking</source>
        <translation>Укладка</translation>
    </message>
    <message>
        <source>Enabled, waits for its turn</source>
        <translation>Включена, ждёт очереди</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Выключена</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Лево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Право</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Выключить</translation>
    </message>
</context>
<context>
    <name>SeriesText</name>
    <message>
        <source>There is nothing to lay.</source>
        <translation>Укладывать нечего.</translation>
    </message>
    <message>
        <source>This recipe has no pattern &quot;%1&quot;.</source>
        <translation>В этом рецепте нет схемы «%1».</translation>
    </message>
    <message>
        <source>That makes %1 layers; a recipe holds at most %2.</source>
        <translation>Получится слоёв: %1; в рецепте не более %2.</translation>
    </message>
</context>
<context>
    <name>StackFrame</name>
    <message>
        <source>Layer of the plan</source>
        <translation>Слой плана</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>План слоя</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>Что неверно в слоях</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>Итоги рецепта</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Слой %1</translation>
    </message>
</context>
<context>
    <name>StackHomePage</name>
    <message>
        <source>Recipes</source>
        <translation>Рецепты</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search recipes</source>
        <translation>Поиск рецептов</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>Имя рецепта</translation>
    </message>
    <message>
        <source>Description of the recipe</source>
        <translation>Описание рецепта</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>Рисунок рецепта</translation>
    </message>
    <message>
        <source>Summary of the recipe</source>
        <translation>Сводка рецепта</translation>
    </message>
    <message>
        <source>Layers of the recipe</source>
        <translation>Слои рецепта</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>There are no recipes yet. Touch &quot;New&quot; to make one.</source>
        <translation>Рецептов пока нет. Нажмите «Создать», чтобы добавить первый.</translation>
    </message>
    <message>
        <source>No recipe is called or described so.</source>
        <translation>Нет рецепта с таким именем или описанием.</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>Новый рецепт</translation>
    </message>
    <message>
        <source>Recipe %1</source>
        <translation>Рецепт %1</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Копия %1</translation>
    </message>
    <message>
        <source>New name for %1</source>
        <translation>Новое имя для %1</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>Удаление рецепта</translation>
    </message>
    <message>
        <source>Delete the recipe &quot;%1&quot;?</source>
        <translation>Удалить рецепт «%1»?</translation>
    </message>
    <message>
        <source>The recipe &quot;%1&quot; was deleted.</source>
        <translation>Рецепт «%1» удалён.</translation>
    </message>
    <message>
        <source>The recipe is back as &quot;%1&quot;; its name was taken.</source>
        <translation>Рецепт возвращён как «%1»: его имя было занято.</translation>
    </message>
    <message>
        <source>The recipe cannot be made: the list of recipes is missing.</source>
        <translation>Рецепт создать нельзя: нет списка рецептов.</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Robot projects</source>
        <translation>Проекты робота</translation>
    </message>
    <message>
        <source>Recipes on the controller</source>
        <translation>Рецепты в контроллере</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>Импорт рецептов</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>Экспорт рецептов</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>Рецепт или общие настройки изменены: рассчитайте точки заново.</translation>
    </message>
</context>
<context>
    <name>StackPanel</name>
    <message>
        <source>The stack from above a corner; drag to turn it</source>
        <translation>Штабель под углом сверху; тяните, чтобы повернуть</translation>
    </message>
    <message>
        <source>Turn the stack anticlockwise</source>
        <translation>Повернуть штабель против часовой стрелки</translation>
    </message>
    <message>
        <source>Turn the stack clockwise</source>
        <translation>Повернуть штабель по часовой стрелке</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Крупнее</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Мельче</translation>
    </message>
    <message>
        <source>What is laid</source>
        <translation>Что уложено</translation>
    </message>
    <message>
        <source>Take the last layer off</source>
        <translation>Снять последний слой</translation>
    </message>
    <message>
        <source>Take the last box off</source>
        <translation>Снять последнюю коробку</translation>
    </message>
    <message>
        <source>How much is laid</source>
        <translation>Сколько уложено</translation>
    </message>
    <message>
        <source>Lay the next box</source>
        <translation>Уложить следующую коробку</translation>
    </message>
    <message>
        <source>Lay the next layer</source>
        <translation>Уложить следующий слой</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1: layer %2, sheet</source>
        <translation>%1: слой %2, прокладка</translation>
    </message>
    <message>
        <source>%1: layer %2, box %3</source>
        <translation>%1: слой %2, коробка %3</translation>
    </message>
</context>
<context>
    <name>StackPatternScene</name>
    <message>
        <source>Separator sheet, its size is not set</source>
        <translation>Прокладка, размер не задан</translation>
    </message>
    <message>
        <source>Separator sheet %1 x %2 x %3 mm</source>
        <translation>Прокладка %1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>This recipe has no layers</source>
        <translation>В этом рецепте нет слоёв</translation>
    </message>
    <message>
        <source>There is no layer %1; the recipe has %2</source>
        <translation>Слоя %1 нет; слоёв в рецепте: %2</translation>
    </message>
    <message>
        <source>The recipe has no pattern &quot;%1&quot;</source>
        <translation>В рецепте нет схемы «%1»</translation>
    </message>
    <message>
        <source>Empty layer: it is left out</source>
        <translation>Пустой слой: пропускается</translation>
    </message>
    <message>
        <source>No pattern is chosen for this layer: the stack ends below it</source>
        <translation>Для слоя не выбрана схема: штабель кончается под ним</translation>
    </message>
    <message>
        <source>Not placed: the stack ends at a layer below</source>
        <translation>Не укладывается: штабель кончается на слое ниже</translation>
    </message>
    <message>
        <source>The pattern &quot;%1&quot; is empty</source>
        <translation>Схема «%1» пуста</translation>
    </message>
</context>
<context>
    <name>StackSetupPage</name>
    <message>
        <source>Recipes</source>
        <translation>Рецепты</translation>
    </message>
    <message>
        <source>Back to the recipes</source>
        <translation>Назад к рецептам</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Рецепт</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>Отменить последнее изменение</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>Повторить отменённое изменение</translation>
    </message>
    <message>
        <source>No recipe is open. Choose one above or go to the recipes.</source>
        <translation>Рецепт не открыт. Выберите его выше или перейдите к рецептам.</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>Паллета</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Схемы</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>Waypoints</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Точки</translation>
    </message>
    <message>
        <source>Wizard</source>
        <translation>Мастер</translation>
    </message>
    <message>
        <source>Go through a part of the recipe page by page</source>
        <translation>Пройти часть рецепта по страницам</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>Направления подвода</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>Product and pallet</source>
        <translation>Изделие и паллета</translation>
    </message>
    <message>
        <source>This recipe is being stacked. Changes take effect when you leave the page, on the pallet that was begun, too.</source>
        <translation>Этот рецепт сейчас укладывается. Изменения вступят в силу, когда вы покинете страницу, в том числе на начатой паллете.</translation>
    </message>
</context>
<context>
    <name>StartDialog</name>
    <message>
        <source>What is asked</source>
        <translation>Что спрашивается</translation>
    </message>
    <message>
        <source>What lies on the pallet then</source>
        <translation>Что тогда лежит на паллете</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Layer down</source>
        <translation>Слой вниз</translation>
    </message>
    <message>
        <source>Layer up</source>
        <translation>Слой вверх</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>Piece down</source>
        <translation>Изделие назад</translation>
    </message>
    <message>
        <source>Piece up</source>
        <translation>Изделие вперёд</translation>
    </message>
    <message>
        <source>Products that lie there</source>
        <translation>Уложенные изделия</translation>
    </message>
    <message>
        <source>The gripper is empty</source>
        <translation>Захват пуст</translation>
    </message>
    <message>
        <source>Why it cannot begin there</source>
        <translation>Почему нельзя начать отсюда</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Начать здесь</translation>
    </message>
    <message>
        <source>Take the product out of the gripper and confirm that it is empty.</source>
        <translation>Снимите изделие с захвата и подтвердите, что он пуст.</translation>
    </message>
    <message>
        <source>%1 of %2 boxes lie on the pallet.</source>
        <translation>На паллете %1 из %2 коробок.</translation>
    </message>
</context>
<context>
    <name>StatusText</name>
    <message>
        <source>Moved by x %1, y %2 mm</source>
        <translation>Сдвиг x %1, y %2 mm</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>Изделие не выбрано</translation>
    </message>
    <message>
        <source>%1 products, %2 x %3 mm</source>
        <translation>Изделий: %1, %2 x %3 mm</translation>
    </message>
    <message>
        <source>Product %1: x %2, y %3 mm, %4°</source>
        <translation>Изделие %1: x %2, y %3 mm, %4°</translation>
    </message>
    <message>
        <source>(1 of %1) %2</source>
        <translation>(1 из %1) %2</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>Invalid X number</source>
        <translation>Недопустимое число X</translation>
    </message>
    <message>
        <source>Invalid Y number</source>
        <translation>Недопустимое число Y</translation>
    </message>
    <message>
        <source>Invalid Y1 or Y2 number</source>
        <translation>Недопустимое число Y1 или Y2</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>Число изделий больше 200</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s x edge</source>
        <translation>Изделие выходит за край паллеты по x</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s y edge</source>
        <translation>Изделие выходит за край паллеты по y</translation>
    </message>
</context>
<context>
    <name>TitleText</name>
    <message>
        <source>%1 mm, 1 px = %2 mm</source>
        <translation>%1 mm, 1 px = %2 mm</translation>
    </message>
    <message>
        <source>overlap</source>
        <translation>перекрытие</translation>
    </message>
    <message>
        <source>over the pallet</source>
        <translation>за паллетой</translation>
    </message>
    <message>
        <source>label side</source>
        <translation>сторона этикетки</translation>
    </message>
    <message>
        <source>approach, to scale</source>
        <translation>подход, в масштабе</translation>
    </message>
    <message>
        <source>layer below</source>
        <translation>слой ниже</translation>
    </message>
</context>
<context>
    <name>ToolFrame</name>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Tool, seen from the flange</source>
        <translation>Инструмент относительно фланца</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Масса</translation>
    </message>
    <message>
        <source>Centre of gravity X</source>
        <translation>Центр тяжести X</translation>
    </message>
    <message>
        <source>Centre of gravity Y</source>
        <translation>Центр тяжести Y</translation>
    </message>
    <message>
        <source>Centre of gravity Z</source>
        <translation>Центр тяжести Z</translation>
    </message>
    <message>
        <source>Two touches</source>
        <translation>Два касания</translation>
    </message>
    <message>
        <source>Touch a fixed tip with the tool and teach the first touch. Turn the hand about its own axis by 90° or more, touch the tip again and teach the second one.</source>
        <translation>Коснитесь инструментом неподвижного острия и обучите первое касание. Поверните кисть вокруг её оси не менее чем на 90°, снова коснитесь острия и обучите второе.</translation>
    </message>
    <message>
        <source>Measure X and Y</source>
        <translation>Измерить X и Y</translation>
    </message>
    <message>
        <source>Touch 1</source>
        <translation>Касание 1</translation>
    </message>
    <message>
        <source>Touch 2</source>
        <translation>Касание 2</translation>
    </message>
    <message>
        <source>The shared tool &quot;%1&quot;, used by all recipes with &quot;Shared tool&quot;.</source>
        <translation>Общий инструмент «%1» для всех рецептов с «Общим инструментом».</translation>
    </message>
    <message>
        <source>The tool of this recipe alone.</source>
        <translation>Инструмент только этого рецепта.</translation>
    </message>
    <message>
        <source>Teach both touches first.</source>
        <translation>Сначала обучите оба касания.</translation>
    </message>
</context>
<context>
    <name>ToolText</name>
    <message>
        <source>Turn the hand by at least %1 degrees about its own axis between the two touches.</source>
        <translation>Между касаниями поверните кисть вокруг её оси не менее чем на %1 градусов.</translation>
    </message>
    <message>
        <source>The two touches are %1 mm apart in the direction of the hand: the tip moved or was not met.</source>
        <translation>Касания расходятся на %1 мм вдоль кисти: остриё сместилось или не задето.</translation>
    </message>
</context>
<context>
    <name>TransferText</name>
    <message>
        <source>Import success!</source>
        <translation>Импорт выполнен!</translation>
    </message>
    <message>
        <source>%1: the disk did not take everything. Do not pull it out; export again.</source>
        <translation>%1: диск записал не всё. Не извлекайте его; повторите экспорт.</translation>
    </message>
    <message>
        <source>Export success to %1!</source>
        <translation>Экспортировано в %1!</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>Последний импорт отменён.</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Хранится</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>WaypointAdjustWizard</name>
    <message>
        <source>Waypoints</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>Heights and taught points</source>
        <translation>Высоты и обученные точки</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Точки</translation>
    </message>
</context>
<context>
    <name>WaypointsFrame</name>
    <message>
        <source>Place side</source>
        <translation>Сторона укладки</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>Сторона захвата</translation>
    </message>
    <message>
        <source>Offsets</source>
        <translation>Смещения</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Heights over the place point</source>
        <translation>Высоты над точкой укладки</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Подход</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>Отвод</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Heights over the pick point</source>
        <translation>Высоты над точкой захвата</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>Левая паллета</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>Вход X</translation>
    </message>
    <message>
        <source>Enter Y</source>
        <translation>Вход Y</translation>
    </message>
    <message>
        <source>Enter height</source>
        <translation>Высота входа</translation>
    </message>
    <message>
        <source>Ready height</source>
        <translation>Высота ожидания</translation>
    </message>
    <message>
        <source>Approach height</source>
        <translation>Высота подхода</translation>
    </message>
    <message>
        <source>Retract height</source>
        <translation>Высота отвода</translation>
    </message>
    <message>
        <source>Exit height</source>
        <translation>Высота выхода</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>Правая паллета</translation>
    </message>
    <message>
        <source>Place point</source>
        <translation>Точка укладки</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>Точка входа</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>Точка захвата</translation>
    </message>
    <message>
        <source>The shared work object gives the place points; the heights come from the shared offsets.</source>
        <translation>Точки укладки задаёт общий рабочий объект; высоты берутся из общих смещений.</translation>
    </message>
    <message>
        <source>The first product of the first layer is placed at the place point&apos;s height; positions come from the pattern.</source>
        <translation>Первое изделие первого слоя укладывается на высоте точки укладки; положения берутся из схемы.</translation>
    </message>
    <message>
        <source>The shared tool gives the pick points and the approach height.</source>
        <translation>Точки захвата и высоту подхода задаёт общий инструмент.</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>Робот берёт каждое изделие в точке захвата.</translation>
    </message>
    <message>
        <source>Shared by all recipes on this work object.</source>
        <translation>Общее для всех рецептов с этим рабочим объектом.</translation>
    </message>
    <message>
        <source>Kept with this recipe for the robot program; the points follow the shared offsets of the work object calibrated by one point.</source>
        <translation>Хранится в этом рецепте для программы робота; точки следуют общим смещениям рабочего объекта, калиброванного по одной точке.</translation>
    </message>
</context>
<context>
    <name>XFileModel</name>
    <message>
        <source>Folder %1</source>
        <translation>Папка %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
</context>
<context>
    <name>palx</name>
    <message>
        <source>The way points have regenerated!</source>
        <translation>Путевые точки рассчитаны заново!</translation>
    </message>
    <message>
        <source>it holds something else</source>
        <translation>в нём другие данные</translation>
    </message>
    <message>
        <source>%1 cannot be read and was kept as %2: %3</source>
        <translation>%1 не читается и сохранён как %2: %3</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>папку создать нельзя</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The panel keeps the data; make room or give access, then change them once more</source>
        <translation>%1 не записывается: %2. Данные остаются в панели; освободите место или дайте доступ и измените их ещё раз</translation>
    </message>
    <message>
        <source>Product para is invalid</source>
        <translation>Недопустимые параметры изделия</translation>
    </message>
    <message>
        <source>Product length is invalid and is setted to default</source>
        <translation>Недопустимая длина изделия; установлено значение по умолчанию</translation>
    </message>
    <message>
        <source>Product width is invalid and is setted to default</source>
        <translation>Недопустимая ширина изделия; установлено значение по умолчанию</translation>
    </message>
    <message>
        <source>Pallet para is invalid</source>
        <translation>Недопустимые параметры паллеты</translation>
    </message>
    <message>
        <source>Pallet length is invalid and is setted to default</source>
        <translation>Недопустимая длина паллеты; установлено значение по умолчанию</translation>
    </message>
    <message>
        <source>Pallet width is invalid and is setted to default</source>
        <translation>Недопустимая ширина паллеты; установлено значение по умолчанию</translation>
    </message>
    <message>
        <source>Pallet&apos;length is less than product&apos;length</source>
        <translation>Длина паллеты меньше длины изделия</translation>
    </message>
    <message>
        <source>Pallet&apos;width is less than product&apos;width</source>
        <translation>Ширина паллеты меньше ширины изделия</translation>
    </message>
    <message>
        <source>The project has no such variable: %1</source>
        <translation>В проекте нет такой переменной: %1</translation>
    </message>
</context>
<context>
    <name>palx::ControllerRecipes</name>
    <message>
        <source>Its answer is no list of recipes.</source>
        <translation>Его ответ — не список рецептов.</translation>
    </message>
    <message>
        <source>The controller does not tell which recipes it holds: %1</source>
        <translation>Контроллер не сообщает, какие рецепты хранит: %1</translation>
    </message>
</context>
<context>
    <name>palx::HeldMove</name>
    <message>
        <source>The move could not be sent to the controller.</source>
        <translation>Не удалось передать движение контроллеру.</translation>
    </message>
</context>
<context>
    <name>palx::JogLabels</name>
    <message>
        <source>J1(%1)</source>
        <translation>J1(%1)</translation>
    </message>
    <message>
        <source>J2(%1)</source>
        <translation>J2(%1)</translation>
    </message>
    <message>
        <source>J3(%1)</source>
        <translation>J3(%1)</translation>
    </message>
    <message>
        <source>J4(%1)</source>
        <translation>J4(%1)</translation>
    </message>
    <message>
        <source>J5(%1)</source>
        <translation>J5(%1)</translation>
    </message>
    <message>
        <source>J6(%1)</source>
        <translation>J6(%1)</translation>
    </message>
    <message>
        <source>J7(%1)</source>
        <translation>J7(%1)</translation>
    </message>
    <message>
        <source>A(%1)</source>
        <translation>A(%1)</translation>
    </message>
    <message>
        <source>B(%1)</source>
        <translation>B(%1)</translation>
    </message>
    <message>
        <source>C(%1)</source>
        <translation>C(%1)</translation>
    </message>
</context>
<context>
    <name>palx::MediumChoice</name>
    <message>
        <source>The folder is not there any more.</source>
        <translation>Этой папки больше нет.</translation>
    </message>
    <message>
        <source>The disk is write-protected. Nothing can be saved on it.</source>
        <translation>Диск защищён от записи. Сохранить на него нельзя.</translation>
    </message>
    <message>
        <source>This folder is write-protected.</source>
        <translation>Эта папка защищена от записи.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Диск заполнен.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>Папка с таким именем уже есть.</translation>
    </message>
    <message>
        <source>There is a file of that name.</source>
        <translation>Файл с таким именем уже есть.</translation>
    </message>
</context>
<context>
    <name>palx::MediumFolder</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Папку нельзя прочитать.</translation>
    </message>
    <message>
        <source>Only %1 entries of the folder are shown.</source>
        <translation>Показаны только первые %1 записей папки.</translation>
    </message>
</context>
<context>
    <name>palx::MediumNames</name>
    <message>
        <source>This disk cannot keep a name with %1.</source>
        <translation>Этот диск не допускает имён с %1.</translation>
    </message>
    <message>
        <source>This disk cannot keep a name that ends with a dot or a blank.</source>
        <translation>Этот диск не допускает имён с точкой или пробелом в конце.</translation>
    </message>
    <message>
        <source>A PC cannot open a file named %1.</source>
        <translation>ПК не откроет файл с именем %1.</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 characters.</source>
        <translation>Слишком длинное имя: %1 из %2 знаков.</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 bytes.</source>
        <translation>Слишком длинное имя: %1 из %2 байт.</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>Файлу нужно имя.</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the file would be hidden.</source>
        <translation>Имя не начинается с точки: файл был бы скрыт.</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>В имени есть невидимый знак.</translation>
    </message>
</context>
<context>
    <name>palx::PatternEditing</name>
    <message>
        <source>Choose at least three products to space them evenly.</source>
        <translation>Для равного распределения выберите не менее трёх изделий.</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products; there would be %2.</source>
        <translation>В схеме не более %1 изделий; получилось бы %2.</translation>
    </message>
</context>
<context>
    <name>palx::ProjectText</name>
    <message>
        <source>The robot is not known yet: connect the controller first</source>
        <translation>Робот ещё не известен: сначала подключите контроллер</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>Не удаётся создать путь: %1</translation>
    </message>
    <message>
        <source>Remove folder %1 failed</source>
        <translation>Не удалось удалить папку %1</translation>
    </message>
    <message>
        <source>Try to add invalid project name</source>
        <translation>Недопустимое имя проекта</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>Проект уже существует</translation>
    </message>
    <message>
        <source>Are you sure to create and switch to new project: %1?</source>
        <translation>Создать новый проект и перейти к нему: %1?</translation>
    </message>
    <message>
        <source>Failed to clone project from: %1</source>
        <translation>Не удалось скопировать проект: %1</translation>
    </message>
    <message>
        <source>Cannot rename to an existing project</source>
        <translation>Нельзя дать имя существующего проекта</translation>
    </message>
    <message>
        <source>Are you sure to update and switch to project %1?</source>
        <translation>Обновить проект %1 и перейти к нему?</translation>
    </message>
    <message>
        <source>Cannot remove empty project</source>
        <translation>Нельзя удалить пустой проект</translation>
    </message>
    <message>
        <source>Are you sure to delete project %1?</source>
        <translation>Удалить проект %1?</translation>
    </message>
    <message>
        <source>Project %1 removed</source>
        <translation>Проект %1 удалён</translation>
    </message>
    <message>
        <source>Empty project</source>
        <translation>Пустой проект</translation>
    </message>
    <message>
        <source>Are you sure to switch to project %1?</source>
        <translation>Перейти к проекту %1?</translation>
    </message>
    <message>
        <source>Reload project %1</source>
        <translation>Загрузить проект %1 заново</translation>
    </message>
    <message>
        <source>The controller did not take the start-up project</source>
        <translation>Контроллер не принял проект для запуска</translation>
    </message>
    <message>
        <source>Auto load project is set to null!</source>
        <translation>Проект автозагрузки сброшен!</translation>
    </message>
    <message>
        <source>Set %1 to auto load project success!</source>
        <translation>Проект %1 назначен для автозагрузки!</translation>
    </message>
    <message>
        <source>File %1 already exists!</source>
        <translation>Файл %1 уже существует!</translation>
    </message>
    <message>
        <source>Cannot create task folder: %1</source>
        <translation>Не удаётся создать папку задачи: %1</translation>
    </message>
    <message>
        <source>Cannot read program template: %1</source>
        <translation>Не удаётся прочитать шаблон программы: %1</translation>
    </message>
    <message>
        <source>Cannot write to file: %1</source>
        <translation>Не удаётся записать файл: %1</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>Менеджер проектов</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Main Function</source>
        <translation>Главная функция</translation>
    </message>
    <message>
        <source>Back Home</source>
        <translation>Возврат в исходное</translation>
    </message>
    <message>
        <source>Init</source>
        <translation>Инициализация</translation>
    </message>
    <message>
        <source>Left Stack</source>
        <translation>Левый штабель</translation>
    </message>
    <message>
        <source>Right Stack</source>
        <translation>Правый штабель</translation>
    </message>
    <message>
        <source>Helper Function</source>
        <translation>Вспомогательная функция</translation>
    </message>
    <message>
        <source>Conveyor belt inspection</source>
        <translation>Контроль конвейера</translation>
    </message>
    <message>
        <source>Palletizing status detection</source>
        <translation>Контроль укладки</translation>
    </message>
    <message>
        <source>Program - Estop - Collision</source>
        <translation>Программа - аварийный стоп - столкновение</translation>
    </message>
    <message>
        <source>Anomaly detection</source>
        <translation>Контроль отклонений</translation>
    </message>
    <message>
        <source>Lifting column status detection</source>
        <translation>Контроль подъёмной колонны</translation>
    </message>
    <message>
        <source>Enable left-side stacking</source>
        <translation>Разрешить укладку слева</translation>
    </message>
    <message>
        <source>Enable right-side stacking</source>
        <translation>Разрешить укладку справа</translation>
    </message>
    <message>
        <source>Left side recipe index</source>
        <translation>Слева: номер рецепта</translation>
    </message>
    <message>
        <source>Left side pallet count</source>
        <translation>Слева: счётчик паллеты</translation>
    </message>
    <message>
        <source>Left side pallet total count</source>
        <translation>Слева: всего на паллете</translation>
    </message>
    <message>
        <source>Left side current layer</source>
        <translation>Слева: текущий слой</translation>
    </message>
    <message>
        <source>Left side current layer count</source>
        <translation>Слева: счётчик текущего слоя</translation>
    </message>
    <message>
        <source>Left side total pallets</source>
        <translation>Слева: всего паллет</translation>
    </message>
    <message>
        <source>Left side total piled count</source>
        <translation>Слева: всего уложено</translation>
    </message>
    <message>
        <source>Left side cycle time</source>
        <translation>Слева: время цикла</translation>
    </message>
    <message>
        <source>Left side box height</source>
        <translation>Слева: высота коробки</translation>
    </message>
    <message>
        <source>Right side recipe index</source>
        <translation>Справа: номер рецепта</translation>
    </message>
    <message>
        <source>Right side pallet count</source>
        <translation>Справа: счётчик паллеты</translation>
    </message>
    <message>
        <source>Right side pallet total count</source>
        <translation>Справа: всего на паллете</translation>
    </message>
    <message>
        <source>Right side current layer</source>
        <translation>Справа: текущий слой</translation>
    </message>
    <message>
        <source>Right side current layer count</source>
        <translation>Справа: счётчик текущего слоя</translation>
    </message>
    <message>
        <source>Right side total pallets</source>
        <translation>Справа: всего паллет</translation>
    </message>
    <message>
        <source>Right side total piled count</source>
        <translation>Справа: всего уложено</translation>
    </message>
    <message>
        <source>Right side cycle time</source>
        <translation>Справа: время цикла</translation>
    </message>
    <message>
        <source>Right side box height</source>
        <translation>Справа: высота коробки</translation>
    </message>
    <message>
        <source>Left: 1, Right: 2</source>
        <translation>Слева: 1, справа: 2</translation>
    </message>
    <message>
        <source>Left full flag</source>
        <translation>Признак: левая полна</translation>
    </message>
    <message>
        <source>Right full flag</source>
        <translation>Признак: правая полна</translation>
    </message>
    <message>
        <source>Lifting column state, 1 up, 0 down</source>
        <translation>Подъёмная колонна: 1 вверху, 0 внизу</translation>
    </message>
    <message>
        <source>Using lifting column</source>
        <translation>Подъёмная колонна в работе</translation>
    </message>
    <message>
        <source>Stacking maximum height</source>
        <translation>Наибольшая высота укладки</translation>
    </message>
    <message>
        <source>Maximum height reachable by the robot in the stacking scene</source>
        <translation>Наибольшая высота, доступная роботу при укладке</translation>
    </message>
    <message>
        <source>Gripping materials</source>
        <translation>Груз захвачен</translation>
    </message>
    <message>
        <source>StandBy Point Margin</source>
        <translation>Допуск точки ожидания</translation>
    </message>
    <message>
        <source>Lift height</source>
        <translation>Высота подъёма</translation>
    </message>
    <message>
        <source>calculate time</source>
        <translation>измерение времени</translation>
    </message>
    <message>
        <source>box height</source>
        <translation>высота коробки</translation>
    </message>
    <message>
        <source>current pos</source>
        <translation>текущее положение</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; %2</source>
        <translation>запись «%1» %2</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>зашифрована</translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>является ссылкой</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>не файл и не папка</translation>
    </message>
    <message>
        <source>is called a file and a folder</source>
        <translation>названа и файлом, и папкой</translation>
    </message>
    <message>
        <source>is a folder with a content of its own</source>
        <translation>это папка с собственным содержимым</translation>
    </message>
    <message>
        <source>is packed in a way that is not known here</source>
        <translation>упакована неизвестным способом</translation>
    </message>
    <message>
        <source>it has %1 entries; no project has more than %2</source>
        <translation>в нём записей: %1; в проекте бывает не больше %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>он пуст</translation>
    </message>
    <message>
        <source>its list of entries is damaged</source>
        <translation>его список записей повреждён</translation>
    </message>
    <message>
        <source>has a name that is read in two ways</source>
        <translation>имеет имя, которое читается двояко</translation>
    </message>
    <message>
        <source>makes it larger than %1 MB, which no project is</source>
        <translation>делает его больше %1 MB, таких проектов не бывает</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>повреждена</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Проверка %1</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>его нельзя прочитать: %1</translation>
    </message>
    <message>
        <source>it is no whole zip archive</source>
        <translation>это не целый архив zip</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>такого файла нет</translation>
    </message>
    <message>
        <source>has an absolute name</source>
        <translation>имеет абсолютный путь</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>ведёт за пределы папки</translation>
    </message>
    <message>
        <source>has a backslash in its name</source>
        <translation>имеет обратную косую черту в имени</translation>
    </message>
    <message>
        <source>has a name that is no path</source>
        <translation>имеет имя, которое не является путём</translation>
    </message>
    <message>
        <source>has a name that is no text in UTF-8</source>
        <translation>имеет имя не в UTF-8</translation>
    </message>
    <message>
        <source>has a control character in its name</source>
        <translation>имеет управляющий знак в имени</translation>
    </message>
    <message>
        <source>has too long a name</source>
        <translation>имеет слишком длинное имя</translation>
    </message>
    <message>
        <source>needs a folder where there is another entry</source>
        <translation>требует папку там, где стоит другая запись</translation>
    </message>
    <message>
        <source>is there twice</source>
        <translation>встречается дважды</translation>
    </message>
    <message>
        <source>makes the project too large for an archive</source>
        <translation>делает проект слишком большим для архива</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>папки %1 нет</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>Упаковка %1</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>архив нельзя записать: %1</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Распаковка</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; was not unpacked as it is listed</source>
        <translation>запись «%1» распакована не так, как указана</translation>
    </message>
    <message>
        <source>more was unpacked than it lists</source>
        <translation>распаковано больше, чем указано</translation>
    </message>
    <message>
        <source>there is no room for %1 MB</source>
        <translation>нет места для %1 MB</translation>
    </message>
    <message>
        <source>it cannot be unpacked to %1</source>
        <translation>его нельзя распаковать в %1</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>Рецепты не приняты: %1</translation>
    </message>
    <message>
        <source>The templates cannot be put back</source>
        <translation>Шаблоны нельзя вернуть</translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>Запись на диск</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>такого проекта нет</translation>
    </message>
    <message>
        <source>Export %1 failed!</source>
        <translation>Экспорт %1 не выполнен!</translation>
    </message>
    <message>
        <source>Export Project templates failed!</source>
        <translation>Экспорт шаблонов проекта не выполнен!</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>Путь экспорта не может быть пустым!</translation>
    </message>
    <message>
        <source>please select item!</source>
        <translation>выберите запись!</translation>
    </message>
    <message>
        <source>Export the project &quot;mod&quot; and the templates one after the other: both become &quot;mod.zip&quot;</source>
        <translation>Экспортируйте проект «mod» и шаблоны по очереди: оба становятся «mod.zip»</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>в %1 нельзя записать</translation>
    </message>
    <message>
        <source>Export to %1 success!</source>
        <translation>Экспортировано в %1!</translation>
    </message>
    <message>
        <source>the permissions of its files cannot be set</source>
        <translation>права его файлов нельзя задать</translation>
    </message>
    <message>
        <source>there is no room beside the robot&apos;s folder</source>
        <translation>рядом с папкой робота нет места</translation>
    </message>
    <message>
        <source>Delete temp file failed!</source>
        <translation>Не удалось удалить временный файл!</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 нельзя создать</translation>
    </message>
    <message>
        <source>%1 import success!</source>
        <translation>%1: импорт выполнен!</translation>
    </message>
    <message>
        <source>Import %1 failed!</source>
        <translation>Импорт %1 не выполнен!</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a project</source>
        <translation>«%1» не годится как имя проекта</translation>
    </message>
    <message>
        <source>What was imported may be lost when the power fails: %1</source>
        <translation>При сбое питания импорт может быть потерян: %1</translation>
    </message>
    <message>
        <source>%1 holds no list of variables</source>
        <translation>%1 не содержит списка переменных</translation>
    </message>
    <message>
        <source>&quot;var.xml&quot;: the value of %1 is none that a project can have</source>
        <translation>«var.xml»: значение %1 недопустимо для проекта</translation>
    </message>
    <message>
        <source>Import project templates failed!</source>
        <translation>Импорт шаблонов проекта не выполнен!</translation>
    </message>
    <message>
        <source>Reset project templates success!</source>
        <translation>Шаблоны проекта сброшены!</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>%1 нельзя заменить</translation>
    </message>
    <message>
        <source>Import project templates success!</source>
        <translation>Шаблоны проекта импортированы!</translation>
    </message>
    <message>
        <source>Project templates import success!</source>
        <translation>Шаблоны проекта импортированы!</translation>
    </message>
    <message>
        <source>the disk takes its archive and another of this export for one</source>
        <translation>диск не различает его архив и другой архив этого экспорта</translation>
    </message>
    <message>
        <source>templates reset</source>
        <translation>шаблоны сброшены</translation>
    </message>
    <message>
        <source>program templates</source>
        <translation>шаблоны программ</translation>
    </message>
    <message>
        <source>The controller is away: the variables of %1 are looked at when it is back and the project is reloaded</source>
        <translation>Контроллер недоступен: переменные проекта %1 будут проверены, когда связь восстановится и проект загрузят снова</translation>
    </message>
    <message>
        <source>it holds no project</source>
        <translation>в нём нет проекта</translation>
    </message>
    <message>
        <source>it holds no program templates</source>
        <translation>в нём нет шаблонов программ</translation>
    </message>
</context>
<context>
    <name>palx::RunText</name>
    <message>
        <source>The recipe has no points yet. Generate them on the page &quot;Points&quot;.</source>
        <translation>У рецепта ещё нет точек. Создайте их на странице «Точки».</translation>
    </message>
    <message>
        <source>The side is in use. Disable it and let the robot end its pallet, or stop the program.</source>
        <translation>Сторона занята. Выключите её и дайте роботу закончить паллету или остановите программу.</translation>
    </message>
    <message>
        <source>There is no recipe for this side.</source>
        <translation>Для этой стороны нет рецепта.</translation>
    </message>
    <message>
        <source>The controller names a recipe that is not here.</source>
        <translation>Контроллер называет рецепт, которого здесь нет.</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed after the points were made. Generate them again on the page &quot;Points&quot;.</source>
        <translation>Рецепт или общие настройки изменены после расчёта точек. Рассчитайте их заново на странице «Точки».</translation>
    </message>
    <message>
        <source>left pallet</source>
        <translation>левая паллета</translation>
    </message>
    <message>
        <source>right pallet</source>
        <translation>правая паллета</translation>
    </message>
    <message>
        <source>Stop the program first!</source>
        <translation>Сначала остановите программу!</translation>
    </message>
    <message>
        <source>There is no recipe for the %1!</source>
        <translation>Нет рецепта: %1!</translation>
    </message>
    <message>
        <source>Clear the gripper first!</source>
        <translation>Сначала освободите захват!</translation>
    </message>
    <message>
        <source>Products of the recipe &quot;%1&quot; lie on the %2!</source>
        <translation>Лежат изделия рецепта «%1»: %2!</translation>
    </message>
    <message>
        <source>The %1 is full; replace it first!</source>
        <translation>Полна %1; сначала замените её!</translation>
    </message>
    <message>
        <source>The recipe has layers 1 to %1!</source>
        <translation>В рецепте слои с 1 по %1!</translation>
    </message>
    <message>
        <source>Layer %1 has pieces 1 to %2!</source>
        <translation>В слое %1 изделия с 1 по %2!</translation>
    </message>
    <message>
        <source>Confirm layer and piece of the %1 first!</source>
        <translation>Сначала подтвердите слой и изделие: %1!</translation>
    </message>
    <message>
        <source>The lift column was stopped; go on with the start button of the cell!</source>
        <translation>Подъёмная колонна остановлена; продолжите кнопкой пуска ячейки!</translation>
    </message>
    <message>
        <source>The lift column has no power; press the stop and then the start button of the cell!</source>
        <translation>Подъёмная колонна без питания; нажмите на ячейке кнопку останова, затем пуска!</translation>
    </message>
    <message>
        <source>The pallet is not as counted; stop the program and confirm the piece!</source>
        <translation>На паллете не столько, сколько сосчитано; остановите программу и подтвердите изделие!</translation>
    </message>
    <message>
        <source>The product was lost; stop the program and confirm the piece!</source>
        <translation>Изделие потеряно; остановите программу и подтвердите изделие!</translation>
    </message>
    <message>
        <source>Recipes would get other places, and the programs that run would take other ones. Stop them first!</source>
        <translation>Рецепты сменили бы места, и работающие программы взяли бы другие. Сначала остановите программы!</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;. Disable the side and let its pallet end, or stop the program!</source>
        <translation>Рецепт «%2» занят (%1). Выключите сторону и дайте закончить паллету или остановите программу!</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;, which stands behind this one: another would take its place. Disable the side and let its pallet end, or stop the program!</source>
        <translation>Рецепт «%2» (%1) стоит после этого: его место занял бы другой. Выключите сторону и дайте закончить паллету или остановите программу!</translation>
    </message>
    <message>
        <source>The products on the %1 are not of the recipe&apos;s size. Take them off, or change the recipe back!</source>
        <translation>Размер лежащих изделий не тот, что в рецепте (%1). Снимите их или верните рецепт!</translation>
    </message>
    <message>
        <source>The recipe lays no products. Put some into the patterns of its layers.</source>
        <translation>Рецепт не укладывает изделий. Добавьте их в схемы его слоёв.</translation>
    </message>
</context>
<context>
    <name>xFileDialog</name>
    <message>
        <source>Disk</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Used space</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>One folder up</source>
        <translation>На папку выше</translation>
    </message>
    <message>
        <source>Shown folder</source>
        <translation>Показанная папка</translation>
    </message>
    <message>
        <source>Kind of the files</source>
        <translation>Вид файлов</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Files and folders</source>
        <translation>Файлы и папки</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Plug in a USB disk.</source>
        <translation>Вставьте USB-диск.</translation>
    </message>
    <message>
        <source>What is chosen, or why nothing can be</source>
        <translation>Что выбрано или почему нельзя выбрать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Use what is chosen</source>
        <translation>Использовать выбранное</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Выбрать эту папку</translation>
    </message>
    <message>
        <source>The disk %1 was pulled out.</source>
        <translation>Диск %1 извлечён.</translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation>свободно %1 из %2</translation>
    </message>
    <message>
        <source>Its files are shown as soon as it is ready.</source>
        <translation>Файлы появятся, как только он будет готов.</translation>
    </message>
    <message>
        <source>The disk %1 is plugged in, but cannot be read. Format it on a PC (FAT32).</source>
        <translation>Диск %1 вставлен, но не читается. Отформатируйте его на ПК (FAT32).</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Папку нельзя создать.</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>Заменит %1</translation>
    </message>
    <message>
        <source>Touch a file.</source>
        <translation>Коснитесь файла.</translation>
    </message>
    <message>
        <source>There is no such file in this folder.</source>
        <translation>В этой папке нет такого файла.</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Заменить файл?</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 уже существует.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 нельзя прочитать.</translation>
    </message>
    <message>
        <source>It is safe to pull out the disk %1 now.</source>
        <translation>Диск %1 можно извлечь.</translation>
    </message>
    <message>
        <source>Do not pull out the disk %1 yet: it has not taken everything.</source>
        <translation>Не извлекайте диск %1: записано ещё не всё.</translation>
    </message>
    <message>
        <source>%1 is on no disk that is plugged in</source>
        <translation>%1 не находится ни на одном подключённом диске</translation>
    </message>
</context>
</TS>
