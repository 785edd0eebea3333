<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export the log</source>
        <translation>Экспорт журнала</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
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
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Kind of the file</source>
        <translation>Вид файла</translation>
    </message>
    <message>
        <source>The file that is written</source>
        <translation>Записываемый файл</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>Число записей</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export the shown records</source>
        <translation>Экспорт показанных записей</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search the log</source>
        <translation>Поиск в журнале</translation>
    </message>
    <message>
        <source>The chosen record</source>
        <translation>Выбранная запись</translation>
    </message>
</context>
<context>
    <name>PanelCellPage</name>
    <message>
        <source>State of the programs</source>
        <translation>Состояние программ</translation>
    </message>
    <message>
        <source>Why, and which project</source>
        <translation>Почему и какой проект</translation>
    </message>
    <message>
        <source>Time in the cell</source>
        <translation>Время в ячейке</translation>
    </message>
    <message>
        <source>The cell</source>
        <translation>Ячейка</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Мельче</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Крупнее</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>1 x</source>
        <translation>1 x</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Реальное время</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Шаг</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Пульт</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Сигналы</translation>
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
        <source>Faults</source>
        <translation>Аварии</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Start button of the cell</source>
        <translation>Кнопка «Старт» ячейки</translation>
    </message>
    <message>
        <source>Stop button of the cell</source>
        <translation>Кнопка «Стоп» ячейки</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Reset button of the cell</source>
        <translation>Кнопка «Сброс» ячейки</translation>
    </message>
    <message>
        <source>Clear gripper</source>
        <translation>Очистить захват</translation>
    </message>
    <message>
        <source>Left arrow button of the cell</source>
        <translation>Кнопка «Влево» ячейки</translation>
    </message>
    <message>
        <source>Right arrow button of the cell</source>
        <translation>Кнопка «Вправо» ячейки</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>Левая паллета</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Left pallet away</source>
        <translation>Убрать левую паллету</translation>
    </message>
    <message>
        <source>Bring empty</source>
        <translation>Пустую сюда</translation>
    </message>
    <message>
        <source>Left pallet: bring an empty one</source>
        <translation>Левая паллета: поставить пустую</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>Правая паллета</translation>
    </message>
    <message>
        <source>Right pallet away</source>
        <translation>Убрать правую паллету</translation>
    </message>
    <message>
        <source>Right pallet: bring an empty one</source>
        <translation>Правая паллета: поставить пустую</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Input on</source>
        <translation>Вход вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Input off</source>
        <translation>Вход выкл.</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Нажать</translation>
    </message>
    <message>
        <source>Press for half a second</source>
        <translation>Нажать на полсекунды</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Поиск переменных</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Новое значение</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
    <message>
        <source>Set the variable</source>
        <translation>Задать переменную</translation>
    </message>
    <message>
        <source>Number of violations</source>
        <translation>Число нарушений</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>Нарушения</translation>
    </message>
    <message>
        <source>The chosen violation</source>
        <translation>Выбранное нарушение</translation>
    </message>
    <message>
        <source>What was asked and answered</source>
        <translation>Запрос и ответ</translation>
    </message>
    <message>
        <source>Speed that the controller tells</source>
        <translation>Скорость по данным контроллера</translation>
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
        <source>Conveyor, gripper and lift column</source>
        <translation>Конвейер, захват и колонна</translation>
    </message>
</context>
<context>
    <name>PanelControllerPage</name>
    <message>
        <source>Controller</source>
        <translation>Контроллер</translation>
    </message>
    <message>
        <source>State of the link</source>
        <translation>Состояние связи</translation>
    </message>
    <message>
        <source>What the state of the link means</source>
        <translation>Что означает состояние связи</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Controller name</source>
        <translation>Имя контроллера</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ПО</translation>
    </message>
    <message>
        <source>Controller software</source>
        <translation>ПО контроллера</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Робот</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Движение</translation>
    </message>
    <message>
        <source>Motion of the robot</source>
        <translation>Движение робота</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>Активный инструмент</translation>
    </message>
    <message>
        <source>Current project</source>
        <translation>Текущий проект</translation>
    </message>
    <message>
        <source>Start project</source>
        <translation>Стартовый проект</translation>
    </message>
    <message>
        <source>Project that starts by itself</source>
        <translation>Проект, запускаемый сам</translation>
    </message>
</context>
<context>
    <name>TextKeyboard</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
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
        <source>Delete the letter before</source>
        <translation>Удалить символ слева</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>Очистить текст</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>Заглавные буквы</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Вправо</translation>
    </message>
</context>
<context>
    <name>bwaf::BModule</name>
    <message>
        <source>The data of the module %1 is incomplete: %2</source>
        <translation>Данные модуля %1 неполны: %2</translation>
    </message>
</context>
<context>
    <name>controller::Texts</name>
    <message>
        <source>out of reach: the wrist would stand %1 mm from the shoulder, the arm reaches %2 mm</source>
        <translation>вне досягаемости: запястье оказалось бы в %1 mm от плеча, рука достаёт на %2 mm</translation>
    </message>
    <message>
        <source>joint %1 would stand at %2°, its limits are %3° and %4°</source>
        <translation>ось %1 встала бы на %2°, её пределы %3° и %4°</translation>
    </message>
    <message>
        <source>The panel speaks version %1 of the link, the controller version %2.</source>
        <translation>Версия связи панели — %1, контроллера — %2.</translation>
    </message>
    <message>
        <source>a Hello without a session</source>
        <translation>приветствие Hello без сеанса</translation>
    </message>
    <message>
        <source>serves another panel</source>
        <translation>обслуживает другую панель</translation>
    </message>
    <message>
        <source>nothing is done before a Hello was accepted</source>
        <translation>до принятия Hello ничего не выполняется</translation>
    </message>
    <message>
        <source>a panel sends no message of the kind %1</source>
        <translation>панель не отправляет сообщений вида %1</translation>
    </message>
    <message>
        <source>the controller ended the connection</source>
        <translation>контроллер закрыл соединение</translation>
    </message>
    <message>
        <source>signals cannot be caught</source>
        <translation>сигналы нельзя перехватить</translation>
    </message>
    <message>
        <source>after %1 % of the straight way joint %2 would turn by %3° at one place</source>
        <translation>после %1 % прямого пути ось %2 повернулась бы на %3° на месте</translation>
    </message>
    <message>
        <source>after %1 % of the straight way: %2</source>
        <translation>после %1 % прямого пути: %2</translation>
    </message>
    <message>
        <source>no recipe: %1</source>
        <translation>не рецепт: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no recipe: %2</source>
        <translation>«%1» — не рецепт: %2</translation>
    </message>
    <message>
        <source>this is no list of recipes</source>
        <translation>это не список рецептов</translation>
    </message>
    <message>
        <source>the name is there twice</source>
        <translation>имя повторяется</translation>
    </message>
    <message>
        <source>entry %1: %2</source>
        <translation>запись %1: %2</translation>
    </message>
    <message>
        <source>&quot;index&quot; is missing or no whole number</source>
        <translation>«index» отсутствует или не целое число</translation>
    </message>
    <message>
        <source>there is no recipe %1, there are %2</source>
        <translation>рецепта %1 нет, всего рецептов: %2</translation>
    </message>
    <message>
        <source>&quot;name&quot; is missing or no text</source>
        <translation>«name» отсутствует или не текст</translation>
    </message>
    <message>
        <source>recipe %1 has the name &quot;%2&quot; already</source>
        <translation>имя «%2» уже есть у рецепта %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>«%1» отсутствует</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of %2 numbers</source>
        <translation>«%1» — не список из %2 чисел</translation>
    </message>
    <message>
        <source>&quot;%1.#%2&quot; is no number</source>
        <translation>«%1.#%2» — не число</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;: %2</source>
        <translation>в «%1»: %2</translation>
    </message>
    <message>
        <source>this is no product with its points</source>
        <translation>это не изделие с точками</translation>
    </message>
    <message>
        <source>&quot;points.put&quot; is no list of layers</source>
        <translation>«points.put» — не список слоёв</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1&quot; is no list of products</source>
        <translation>«points.put.#%1» — не список изделий</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1.#%2&quot;: %3</source>
        <translation>«points.put.#%1.#%2»: %3</translation>
    </message>
    <message>
        <source>this is no record with names</source>
        <translation>это не запись с именами</translation>
    </message>
    <message>
        <source>&quot;points&quot; is missing</source>
        <translation>«points» отсутствует</translation>
    </message>
    <message>
        <source>&quot;layers&quot; is no list</source>
        <translation>«layers» — не список</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is lost</source>
        <translation>«%1» потеряно</translation>
    </message>
    <message>
        <source>&quot;type&quot; is &quot;%1&quot;, neither &quot;l&quot; nor &quot;j&quot;</source>
        <translation>«type» имеет значение «%1», а не «l» или «j»</translation>
    </message>
    <message>
        <source>&quot;motion.speed&quot; is no speed: %1</source>
        <translation>«motion.speed» — не скорость: %1</translation>
    </message>
    <message>
        <source>&quot;point&quot; is missing</source>
        <translation>«point» отсутствует</translation>
    </message>
    <message>
        <source>in &quot;point&quot;: %1</source>
        <translation>в «point»: %1</translation>
    </message>
    <message>
        <source>the robot is moving already</source>
        <translation>робот уже движется</translation>
    </message>
    <message>
        <source>stopped: no sign from the held button for %1 ms</source>
        <translation>остановлен: нет сигнала удерживаемой кнопки %1 ms</translation>
    </message>
    <message>
        <source>this is no file of a controller</source>
        <translation>это не файл контроллера</translation>
    </message>
    <message>
        <source>length and checksum do not fit the content</source>
        <translation>длина и контрольная сумма не соответствуют содержимому</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be made</source>
        <translation>папку «%1» создать нельзя</translation>
    </message>
    <message>
        <source>another controller uses the folder &quot;%1&quot;</source>
        <translation>папку «%1» использует другой контроллер</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and was set aside as &quot;%3&quot;</source>
        <translation>«%1» повреждён (%2) и отложен как «%3»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and cannot be moved</source>
        <translation>«%1» повреждён (%2), и его нельзя переместить</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: папку создать нельзя</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>Имитатор контроллера</translation>
    </message>
    <message>
        <source>nothing will be kept: %1</source>
        <translation>ничего не будет сохранено: %1</translation>
    </message>
    <message>
        <source>The controller cannot keep its state: %1</source>
        <translation>Контроллер не может сохранить своё состояние: %1</translation>
    </message>
    <message>
        <source>the panel does not write &quot;%1&quot;</source>
        <translation>панель не записывает «%1»</translation>
    </message>
    <message>
        <source>what was written at &quot;%1&quot; is nested too deep</source>
        <translation>записанное в «%1» вложено слишком глубоко</translation>
    </message>
    <message>
        <source>there is no place &quot;%1&quot;</source>
        <translation>места «%1» нет</translation>
    </message>
    <message>
        <source>there is no event &quot;%1&quot;</source>
        <translation>события «%1» нет</translation>
    </message>
    <message>
        <source>stopped: the link to the panel is lost</source>
        <translation>остановлен: связь с панелью потеряна</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing or no text</source>
        <translation>«%1» отсутствует или не текст</translation>
    </message>
    <message>
        <source>the controller knows no request &quot;%1&quot;</source>
        <translation>контроллер не знает запроса «%1»</translation>
    </message>
    <message>
        <source>the robot is moving</source>
        <translation>робот движется</translation>
    </message>
    <message>
        <source>the controller does not answer</source>
        <translation>контроллер не отвечает</translation>
    </message>
    <message>
        <source>cannot listen on port %1: %2</source>
        <translation>нельзя слушать порт %1: %2</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is missing</source>
        <translation>«load.mass» отсутствует</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is no mass: %1</source>
        <translation>«load.mass» — не масса: %1</translation>
    </message>
    <message>
        <source>&quot;name&quot; is no text</source>
        <translation>«name» — не текст</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; stands for no tool</source>
        <translation>имя «%1» означает отсутствие инструмента</translation>
    </message>
    <message>
        <source>no toolset: %1</source>
        <translation>не набор инструмента: %1</translation>
    </message>
    <message>
        <source>there are %1 tools already, no more are kept</source>
        <translation>инструментов уже %1, больше не хранится</translation>
    </message>
    <message>
        <source>there is no toolset &quot;%1&quot;</source>
        <translation>набора инструмента «%1» нет</translation>
    </message>
    <message>
        <source>there is no variable &quot;%1&quot;</source>
        <translation>переменной «%1» нет</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; is not persistent</source>
        <translation>переменная «%1» не сохраняемая</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; of type %2 does not take &quot;%3&quot;</source>
        <translation>переменная «%1» типа %2 не принимает «%3»</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; has no place for a value</source>
        <translation>у переменной «%1» нет места для значения</translation>
    </message>
    <message>
        <source>this is no map of variables</source>
        <translation>это не набор переменных</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 нельзя запустить: %2</translation>
    </message>
    <message>
        <source>%1 ended</source>
        <translation>%1 завершил работу</translation>
    </message>
    <message>
        <source>stopped: another move was asked for</source>
        <translation>остановлено: запрошено другое движение</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be written: %2</source>
        <translation>в папку «%1» нельзя записать: %2</translation>
    </message>
    <message>
        <source>The project %1 cannot be built: it has no folder in the workspace &quot;%2&quot;</source>
        <translation>Проект %1 нельзя собрать: в рабочей папке «%2» нет его папки</translation>
    </message>
    <message>
        <source>there is no recipe &quot;%1&quot;</source>
        <translation>рецепта «%1» нет</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; cannot be used: %2</source>
        <translation>рецепт «%1» нельзя использовать: %2</translation>
    </message>
    <message>
        <source>recipe %1</source>
        <translation>рецепт %1</translation>
    </message>
    <message>
        <source>left recipe %1</source>
        <translation>левый рецепт %1</translation>
    </message>
    <message>
        <source>right recipe %1</source>
        <translation>правый рецепт %1</translation>
    </message>
    <message>
        <source>there is no %1, there are %2</source>
        <translation>%1: нет, всего %2</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no layer %2, it has %3</source>
        <translation>в рецепте «%1» нет слоя %2, всего слоёв %3</translation>
    </message>
    <message>
        <source>layer %1 of the recipe &quot;%2&quot; has no piece %3, it has %4</source>
        <translation>в слое %1 рецепта «%2» нет изделия %3, всего %4</translation>
    </message>
    <message>
        <source>no pallet point is set yet</source>
        <translation>точка паллеты ещё не задана</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>у него нет точек</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no point &quot;%2&quot; for layer %3, piece %4</source>
        <translation>в рецепте «%1» нет точки «%2» для слоя %3, изделия %4</translation>
    </message>
    <message>
        <source>in &quot;%1&quot; of the recipe &quot;%2&quot;: %3</source>
        <translation>в «%1» рецепта «%2»: %3</translation>
    </message>
    <message>
        <source>its work object needs three calibration points</source>
        <translation>его рабочему объекту нужны три точки калибровки</translation>
    </message>
    <message>
        <source>start button</source>
        <translation>кнопка «Пуск»</translation>
    </message>
    <message>
        <source>stop button</source>
        <translation>кнопка «Стоп»</translation>
    </message>
    <message>
        <source>reset button</source>
        <translation>кнопка сброса</translation>
    </message>
    <message>
        <source>left arrow button</source>
        <translation>кнопка «Влево»</translation>
    </message>
    <message>
        <source>right arrow button</source>
        <translation>кнопка «Вправо»</translation>
    </message>
    <message>
        <source>left pallet in place</source>
        <translation>левая паллета на месте</translation>
    </message>
    <message>
        <source>right pallet in place</source>
        <translation>правая паллета на месте</translation>
    </message>
    <message>
        <source>scanner 1, input 1</source>
        <translation>сканер 1, вход 1</translation>
    </message>
    <message>
        <source>scanner 1, input 2</source>
        <translation>сканер 1, вход 2</translation>
    </message>
    <message>
        <source>scanner 1, input 3</source>
        <translation>сканер 1, вход 3</translation>
    </message>
    <message>
        <source>scanner 2, input 1</source>
        <translation>сканер 2, вход 1</translation>
    </message>
    <message>
        <source>scanner 2, input 2</source>
        <translation>сканер 2, вход 2</translation>
    </message>
    <message>
        <source>scanner 2, input 3</source>
        <translation>сканер 2, вход 3</translation>
    </message>
    <message>
        <source>air pressure</source>
        <translation>давление воздуха</translation>
    </message>
    <message>
        <source>product in place</source>
        <translation>изделие на месте</translation>
    </message>
    <message>
        <source>start lamp</source>
        <translation>лампа «Пуск»</translation>
    </message>
    <message>
        <source>stop lamp</source>
        <translation>лампа «Стоп»</translation>
    </message>
    <message>
        <source>reset lamp</source>
        <translation>лампа сброса</translation>
    </message>
    <message>
        <source>left arrow lamp</source>
        <translation>лампа «Влево»</translation>
    </message>
    <message>
        <source>right arrow lamp</source>
        <translation>лампа «Вправо»</translation>
    </message>
    <message>
        <source>suction</source>
        <translation>вакуум</translation>
    </message>
    <message>
        <source>scanner 1, zone 1</source>
        <translation>сканер 1, зона 1</translation>
    </message>
    <message>
        <source>scanner 1, zone 2</source>
        <translation>сканер 1, зона 2</translation>
    </message>
    <message>
        <source>scanner 2, zone 1</source>
        <translation>сканер 2, зона 1</translation>
    </message>
    <message>
        <source>scanner 2, zone 2</source>
        <translation>сканер 2, зона 2</translation>
    </message>
    <message>
        <source>left beacon red</source>
        <translation>левый маяк, красный</translation>
    </message>
    <message>
        <source>left beacon yellow</source>
        <translation>левый маяк, жёлтый</translation>
    </message>
    <message>
        <source>left beacon green</source>
        <translation>левый маяк, зелёный</translation>
    </message>
    <message>
        <source>left buzzer</source>
        <translation>левый зуммер</translation>
    </message>
    <message>
        <source>right beacon red</source>
        <translation>правый маяк, красный</translation>
    </message>
    <message>
        <source>right beacon yellow</source>
        <translation>правый маяк, жёлтый</translation>
    </message>
    <message>
        <source>right beacon green</source>
        <translation>правый маяк, зелёный</translation>
    </message>
    <message>
        <source>right buzzer</source>
        <translation>правый зуммер</translation>
    </message>
    <message>
        <source>conveyor forward</source>
        <translation>конвейер вперёд</translation>
    </message>
    <message>
        <source>conveyor reverse</source>
        <translation>конвейер назад</translation>
    </message>
    <message>
        <source>&quot;on&quot; is missing or neither true nor false</source>
        <translation>«on» отсутствует или не true и не false</translation>
    </message>
    <message>
        <source>and %1 more problems in the programs</source>
        <translation>и ещё ошибок в программах: %1</translation>
    </message>
    <message>
        <source>there is no current project</source>
        <translation>текущего проекта нет</translation>
    </message>
    <message>
        <source>the project %1 has no folder in the workspace</source>
        <translation>у проекта %1 нет папки в рабочей области</translation>
    </message>
    <message>
        <source>the programs have problems: %1</source>
        <translation>в программах ошибки: %1</translation>
    </message>
    <message>
        <source>paused at the panel</source>
        <translation>пауза с панели</translation>
    </message>
    <message>
        <source>&quot;factor&quot; is no number from %1 to %2</source>
        <translation>«factor» не число от %1 до %2</translation>
    </message>
    <message>
        <source>there is no input &quot;%1&quot;</source>
        <translation>входа «%1» нет</translation>
    </message>
    <message>
        <source>there is no fault &quot;%1&quot;, there are %2</source>
        <translation>неисправности «%1» нет, есть: %2</translation>
    </message>
    <message>
        <source>&quot;side&quot; is neither 0 (left) nor 1 (right)</source>
        <translation>«side» не 0 (слева) и не 1 (справа)</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, neither &quot;take&quot; nor &quot;bring&quot;</source>
        <translation>«action» имеет значение «%1», а не «take» или «bring»</translation>
    </message>
    <message>
        <source>Program: %1</source>
        <translation>Программа: %1</translation>
    </message>
    <message>
        <source>%1 %2:%3, layer %4, piece %5: %6</source>
        <translation>%1 %2:%3, слой %4, изделие %5: %6</translation>
    </message>
    <message>
        <source>this is no name of a file</source>
        <translation>это не имя файла</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>файл не читается: %1</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>файл больше %1 байт</translation>
    </message>
    <message>
        <source>there is no kind of task &quot;%1&quot;</source>
        <translation>вида задачи «%1» нет</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a task</source>
        <translation>«%1» — не имя задачи</translation>
    </message>
    <message>
        <source>the emergency stop is pressed</source>
        <translation>нажата аварийная остановка</translation>
    </message>
    <message>
        <source>the robot was stopped by a collision; reset first</source>
        <translation>робот остановлен столкновением; сначала сброс</translation>
    </message>
    <message>
        <source>somebody stands in the field of scanner %1</source>
        <translation>в поле сканера %1 кто-то есть</translation>
    </message>
    <message>
        <source>the project has no motion task</source>
        <translation>в проекте нет задачи движения</translation>
    </message>
    <message>
        <source>no program runs</source>
        <translation>программа не выполняется</translation>
    </message>
    <message>
        <source>the program runs; pause it first</source>
        <translation>программа выполняется; сначала пауза</translation>
    </message>
    <message>
        <source>the power was cut</source>
        <translation>питание отключилось</translation>
    </message>
    <message>
        <source>the stop button was pressed</source>
        <translation>нажата кнопка «Стоп»</translation>
    </message>
    <message>
        <source>paused by the program, %1</source>
        <translation>пауза из программы, %1</translation>
    </message>
    <message>
        <source>the program is at its end</source>
        <translation>программа завершена</translation>
    </message>
    <message>
        <source>one step was made, to %1</source>
        <translation>выполнен один шаг, до %1</translation>
    </message>
    <message>
        <source>a program runs; pause it first</source>
        <translation>выполняется программа; сначала пауза</translation>
    </message>
    <message>
        <source>the robot is braking</source>
        <translation>робот тормозит</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, not &quot;clear&quot;</source>
        <translation>«action» — «%1», а не «clear»</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>это не файл</translation>
    </message>
    <message>
        <source>%1: this is no file</source>
        <translation>%1: это не файл</translation>
    </message>
    <message>
        <source>%1: it is nested too deep</source>
        <translation>%1: слишком глубокая вложенность</translation>
    </message>
    <message>
        <source>%1: there is no list</source>
        <translation>%1: нет списка</translation>
    </message>
    <message>
        <source>The project %1 cannot be read: %2</source>
        <translation>Проект %1 не читается: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 does not take its tasks and variables: %2</source>
        <translation>В папку проекта %1 не удаётся записать его задачи и переменные: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 was exchanged while its program runs; what is in it counts when the program is stopped and started again</source>
        <translation>Папка проекта %1 была заменена во время работы его программы; её содержимое вступит в силу, когда программу остановят и запустят снова</translation>
    </message>
    <message>
        <source>The project %1 has no tasks: edit it, and they are made anew</source>
        <translation>В проекте %1 нет задач: измените его, и они будут созданы заново</translation>
    </message>
    <message>
        <source>the folder of the project was exchanged, and its counters with it: look at them before it runs</source>
        <translation>папка проекта была заменена, а с ней и счётчики: проверьте их перед запуском</translation>
    </message>
</context>
<context>
    <name>host::ControllerLink</name>
    <message>
        <source>Looking for the controller.</source>
        <translation>Поиск контроллера.</translation>
    </message>
    <message>
        <source>The link to the controller is closed.</source>
        <translation>Связь с контроллером закрыта.</translation>
    </message>
    <message>
        <source>The controller is being asked for its state.</source>
        <translation>Запрашивается состояние контроллера.</translation>
    </message>
    <message>
        <source>The link to the controller broke: %1. Edits stay in the panel and are sent when it is back. Check the cable and the controller.</source>
        <translation>Связь с контроллером прервалась: %1. Изменения остаются в панели и будут отправлены после её восстановления. Проверьте кабель и контроллер.</translation>
    </message>
    <message>
        <source>The controller cannot be reached: %1. Check the cable and whether it is switched on.</source>
        <translation>Контроллер недоступен: %1. Проверьте кабель и включён ли контроллер.</translation>
    </message>
    <message>
        <source>it did not answer the greeting</source>
        <translation>он не ответил на приветствие</translation>
    </message>
    <message>
        <source>it was silent for %1 s</source>
        <translation>молчание в течение %1 s</translation>
    </message>
    <message>
        <source>An edit cannot be sent to the controller: %1</source>
        <translation>Изменение нельзя отправить контроллеру: %1</translation>
    </message>
    <message>
        <source>the controller must not send such a message</source>
        <translation>контроллер не должен отправлять такое сообщение</translation>
    </message>
    <message>
        <source>The controller speaks version %1 of the link, this panel version %2. Update the older one.</source>
        <translation>Версия связи контроллера — %1, этой панели — %2. Обновите более старую сторону.</translation>
    </message>
    <message>
        <source>Controller %1 connected, software %2, robot %3.</source>
        <translation>Контроллер %1 подключён, ПО %2, робот %3.</translation>
    </message>
    <message>
        <source>The controller serves another panel. Close the link there; this panel asks again by itself.</source>
        <translation>Контроллер обслуживает другую панель. Закройте связь там; эта панель повторит запрос сама.</translation>
    </message>
    <message>
        <source>The controller refuses this panel&apos;s version of the link: %1. Update the older one.</source>
        <translation>Контроллер не принимает версию связи этой панели: %1. Обновите более старую сторону.</translation>
    </message>
    <message>
        <source>The controller sent something that cannot be read and was left out: %1.</source>
        <translation>Контроллер отправил нечитаемое сообщение, оно пропущено: %1.</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>У этой панели нет связи с контроллером.</translation>
    </message>
    <message>
        <source>The controller did not carry out &quot;%1&quot;: %2</source>
        <translation>Контроллер не выполнил «%1»: %2</translation>
    </message>
    <message>
        <source>The controller is not connected.</source>
        <translation>Контроллер не подключён.</translation>
    </message>
    <message>
        <source>The link to the controller broke before it answered.</source>
        <translation>Связь с контроллером прервалась до ответа.</translation>
    </message>
    <message>
        <source>The controller did not answer within %1 s.</source>
        <translation>Контроллер не ответил за %1 s.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no node that a controller may change</source>
        <translation>«%1» — не узел, который вправе менять контроллер</translation>
    </message>
    <message>
        <source>there is no place for &quot;%1&quot;</source>
        <translation>нет места для «%1»</translation>
    </message>
    <message>
        <source>a greeting without a state</source>
        <translation>приветствие без состояния</translation>
    </message>
    <message>
        <source>The controller did not take a message of the panel: %1.</source>
        <translation>Контроллер не принял сообщение панели: %1.</translation>
    </message>
    <message>
        <source>Messages that could not be read: %1.</source>
        <translation>Нечитаемых сообщений: %1.</translation>
    </message>
    <message>
        <source>Answers that came late or twice: %1.</source>
        <translation>Ответов с опозданием или дважды: %1.</translation>
    </message>
    <message>
        <source>Requests without an answer: %1.</source>
        <translation>Запросов без ответа: %1.</translation>
    </message>
    <message>
        <source>The controller answered a request too late or twice. The answer was dropped.</source>
        <translation>Контроллер ответил слишком поздно или дважды. Ответ отброшен.</translation>
    </message>
</context>
<context>
    <name>host::HostSession</name>
    <message>
        <source>The panel cannot start</source>
        <translation>Панель не может запуститься</translation>
    </message>
    <message>
        <source>another session runs in this process</source>
        <translation>в этом процессе уже идёт другой сеанс</translation>
    </message>
    <message>
        <source>A folder cannot be made</source>
        <translation>Папку создать нельзя</translation>
    </message>
    <message>
        <source>nothing is stored there</source>
        <translation>там ничего не сохраняется</translation>
    </message>
    <message>
        <source>The stored data cannot be used</source>
        <translation>Сохранённые данные нельзя использовать</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>Данные нельзя сохранить</translation>
    </message>
    <message>
        <source>The panel&apos;s own nodes cannot be built</source>
        <translation>Собственные узлы панели построить нельзя</translation>
    </message>
    <message>
        <source>The plug-in cannot be used</source>
        <translation>Модуль расширения нельзя использовать</translation>
    </message>
    <message>
        <source>The plug-in is left out</source>
        <translation>Модуль расширения пропущен</translation>
    </message>
    <message>
        <source>a module &quot;%1&quot; is there already</source>
        <translation>модуль «%1» уже есть</translation>
    </message>
    <message>
        <source>its factory made no module &quot;%1&quot;</source>
        <translation>его фабрика не создала модуль «%1»</translation>
    </message>
</context>
<context>
    <name>host::LibraryFile</name>
    <message>
        <source>it is no library</source>
        <translation>это не библиотека</translation>
    </message>
    <message>
        <source>the file is incomplete: it has %1 bytes, %2 are needed</source>
        <translation>файл неполный: в нём %1 байт, нужно %2</translation>
    </message>
</context>
<context>
    <name>host::Link</name>
    <message>
        <source>a message of %1 bytes is longer than the %2 that are read</source>
        <translation>сообщение в %1 байт длиннее читаемых %2</translation>
    </message>
    <message>
        <source>no message is of the kind %1</source>
        <translation>сообщений вида %1 не бывает</translation>
    </message>
    <message>
        <source>the message is of version %1 of the link, only version %2 is read</source>
        <translation>сообщение версии связи %1, читается только версия %2</translation>
    </message>
    <message>
        <source>the message has %1 bytes where its head names %2</source>
        <translation>в сообщении %1 байт, а в его заголовке указано %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the wrong kind</source>
        <translation>«%1» неверного вида</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>«%1» вне диапазона</translation>
    </message>
    <message>
        <source>the message is no map of keys</source>
        <translation>сообщение — не набор ключей</translation>
    </message>
    <message>
        <source>these bytes are no message of the link</source>
        <translation>эти байты — не сообщение связи</translation>
    </message>
    <message>
        <source>the message is cut off in its head</source>
        <translation>сообщение обрывается в заголовке</translation>
    </message>
    <message>
        <source>the message was damaged on its way</source>
        <translation>сообщение повреждено при передаче</translation>
    </message>
</context>
<context>
    <name>host::LogKeeper</name>
    <message>
        <source>A log record cannot be kept: %1</source>
        <translation>Запись журнала нельзя сохранить: %1</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>у неё нет заголовка</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; сохранён как %2</translation>
    </message>
    <message>
        <source>The log cannot be kept over a restart: %1</source>
        <translation>Журнал нельзя сохранить до перезапуска: %1</translation>
    </message>
</context>
<context>
    <name>host::PluginLoader</name>
    <message>
        <source>it has no entry &quot;%1&quot;, so it is no plug-in of this panel</source>
        <translation>в нём нет точки входа «%1», значит, это не расширение этой панели</translation>
    </message>
    <message>
        <source>its entry &quot;%1&quot; tells nothing</source>
        <translation>его точка входа «%1» ничего не сообщает</translation>
    </message>
    <message>
        <source>it was built for interface %1 of the framework, this panel has interface %2</source>
        <translation>он собран для интерфейса %1, а у этой панели интерфейс %2</translation>
    </message>
    <message>
        <source>it tells no name</source>
        <translation>он не сообщает имени</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>такого файла нет</translation>
    </message>
    <message>
        <source>it has registered no module under the name &quot;%1&quot;</source>
        <translation>он не зарегистрировал модуль под именем «%1»</translation>
    </message>
    <message>
        <source>it has registered no version under the name &quot;%1&quot;</source>
        <translation>он не зарегистрировал версию под именем «%1»</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>Модуль расширения не загружается</translation>
    </message>
</context>
<context>
    <name>host::Store</name>
    <message>
        <source>a store is open already in this program</source>
        <translation>в этой программе хранилище уже открыто</translation>
    </message>
    <message>
        <source>files cannot be made there</source>
        <translation>там нельзя создавать файлы</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is in use by %2 (process %3 on %4). End that program or choose another data folder.</source>
        <translation>Папка данных «%1» занята: %2 (процесс %3 на %4). Завершите ту программу или выберите другую папку данных.</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>другая программа</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>папку создать нельзя</translation>
    </message>
    <message>
        <source>another program has written it in the meantime</source>
        <translation>тем временем её записала другая программа</translation>
    </message>
    <message>
        <source>What the panel holds is stored anew.</source>
        <translation>Данные панели сохраняются заново.</translation>
    </message>
    <message>
        <source>The panel starts from its templates.</source>
        <translation>Панель запускается с шаблонов.</translation>
    </message>
    <message>
        <source>%1 entries in it were whole and were taken over.</source>
        <translation>Перенесено целых записей: %1.</translation>
    </message>
    <message>
        <source>%1 of its %2 entries were whole and were taken over.</source>
        <translation>Перенесено целых записей: %1 из %2.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; cannot be read: %2. The panel starts from its templates; the stored data will be kept aside.</source>
        <translation>Данные в «%1» не читаются: %2. Панель запускается с шаблонов; прежние данные будут отложены.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2. %3 entries were whole and were taken over.</source>
        <translation>Данные в «%1» повреждены: %2. Перенесено целых записей: %3.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; could not be used: %2.</source>
        <translation>Данные в «%1» нельзя использовать: %2.</translation>
    </message>
    <message>
        <source>The file was kept as &quot;%1&quot;.</source>
        <translation>Файл сохранён как «%1».</translation>
    </message>
    <message>
        <source>All other entries were taken over.</source>
        <translation>Все остальные записи перенесены.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2.</source>
        <translation>Данные в «%1» повреждены: %2.</translation>
    </message>
    <message>
        <source>entry %1 has no valid text</source>
        <translation>в записи %1 недопустимый текст</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be stored: %2.</source>
        <translation>«%1» нельзя сохранить: %2.</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; cannot be written: %2. Changes are kept in memory, and saving is tried again every %3 seconds and at the end. Make the folder writable or free space on its disk; what is not saved is lost with the end of the program.</source>
        <translation>В папку данных «%1» нельзя писать: %2. Изменения хранятся в памяти; сохранение повторяется каждые %3 s и при завершении. Разрешите запись в папку или освободите место на диске: несохранённое теряется с завершением программы.</translation>
    </message>
    <message>
        <source>the SQLite driver of Qt is not installed</source>
        <translation>драйвер SQLite для Qt не установлен</translation>
    </message>
    <message>
        <source>it is no store of this panel</source>
        <translation>это не хранилище этой панели</translation>
    </message>
    <message>
        <source>it was written by a newer version of this panel (form %1)</source>
        <translation>записано более новой версией панели (форма %1)</translation>
    </message>
    <message>
        <source>its form %1 is unknown</source>
        <translation>его форма %1 неизвестна</translation>
    </message>
    <message>
        <source>the checksum of entry %1 is wrong</source>
        <translation>неверная контрольная сумма записи %1</translation>
    </message>
    <message>
        <source>its manifest is missing</source>
        <translation>нет его описи</translation>
    </message>
    <message>
        <source>the checksum of its manifest is wrong</source>
        <translation>неверная контрольная сумма описи</translation>
    </message>
    <message>
        <source>it holds %1 entries instead of %2, or others</source>
        <translation>в нём записей %1 вместо %2 или записи другие</translation>
    </message>
    <message>
        <source>the file cannot be renamed</source>
        <translation>файл нельзя переименовать</translation>
    </message>
    <message>
        <source>it cannot be renamed</source>
        <translation>его нельзя переименовать</translation>
    </message>
</context>
<context>
    <name>host::TreeBinder</name>
    <message>
        <source>The template cannot be used: %1</source>
        <translation>Шаблон нельзя использовать: %1</translation>
    </message>
    <message>
        <source>The template %1 holds no map of keys</source>
        <translation>В шаблоне %1 нет набора ключей</translation>
    </message>
    <message>
        <source>Stored values do not fit the template and were left out: %1</source>
        <translation>Сохранённые значения не подходят к шаблону и пропущены: %1</translation>
    </message>
</context>
<context>
    <name>ix::ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>Очистить поле</translation>
    </message>
</context>
<context>
    <name>ix::calc</name>
    <message>
        <source>%1 are only %2 mm apart; at least %3 mm are needed.</source>
        <translation>%1: расстояние лишь %2 mm, нужно не менее %3 mm.</translation>
    </message>
    <message>
        <source>A calibration point holds no number.</source>
        <translation>В точке калибровки нет числа.</translation>
    </message>
    <message>
        <source>The origin and the point on X</source>
        <translation>Начало координат и точка на X</translation>
    </message>
    <message>
        <source>The origin and the point on the XY plane</source>
        <translation>Начало координат и точка на плоскости XY</translation>
    </message>
    <message>
        <source>The directions to the two points differ by only %1 degrees; at least %2 are needed.</source>
        <translation>Направления на две точки различаются лишь на %1 градусов, нужно не менее %2.</translation>
    </message>
</context>
<context>
    <name>nexo::ManagerHelper</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>Перевод %1 не читается.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>nexo::SettingManager</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1, байт %2</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>в нём нет объекта JSON</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is no text</source>
        <translation>значение «%1» — не текст</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>он больше %1 байт</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. Settings are not saved.</source>
        <translation>Файл настроек %1 нельзя использовать: %2. Настройки не сохраняются.</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. It is kept as %3.</source>
        <translation>Файл настроек %1 нельзя использовать: %2. Он сохранён как %3.</translation>
    </message>
    <message>
        <source>Cannot save the settings file %1: %2</source>
        <translation>Файл настроек %1 нельзя сохранить: %2</translation>
    </message>
</context>
<context>
    <name>orba::ModuleManager</name>
    <message>
        <source>%1 (at &quot;%2&quot;)</source>
        <translation>%1 (в «%2»)</translation>
    </message>
    <message>
        <source>lists and maps are nested more than %1 deep</source>
        <translation>списки и наборы вложены глубже %1</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>файл не существует</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>the file has %1 bytes, more than the %2 that are read</source>
        <translation>в файле %1 байт, больше читаемых %2</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>не открывается: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>не читается: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>не записывается: %1</translation>
    </message>
    <message>
        <source>is written, but may be lost when the power fails: %1</source>
        <translation>записано, но может пропасть при отключении питания: %1</translation>
    </message>
    <message>
        <source>a whole number is outside of 64 bits</source>
        <translation>целое число не помещается в 64 бита</translation>
    </message>
    <message>
        <source>an item is {&quot;name&quot;: text, &quot;value&quot;: ...}, without &quot;name&quot; when it has none</source>
        <translation>элемент имеет вид {&quot;name&quot;: текст, &quot;value&quot;: ...}, без &quot;name&quot;, если имени нет</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; stands alone with one text</source>
        <translation>«#utf16» стоит отдельно с одним текстом</translation>
    </message>
    <message>
        <source>a mixed container is {&quot;#mixed&quot;: &quot;list&quot; or &quot;map&quot;, &quot;#items&quot;: [...]}</source>
        <translation>смешанный контейнер имеет вид {&quot;#mixed&quot;: &quot;list&quot; или &quot;map&quot;, &quot;#items&quot;: [...]}</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>число слишком велико</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; holds no base64 text of UTF-16</source>
        <translation>в «#utf16» нет текста UTF-16 в base64</translation>
    </message>
    <message>
        <source>keys that begin with one &quot;#&quot; are reserved, write &quot;##&quot;</source>
        <translation>ключи с одним «#» в начале зарезервированы, пишите «##»</translation>
    </message>
    <message>
        <source>a name is a text or {&quot;#utf16&quot;: ...}</source>
        <translation>имя — это текст или {&quot;#utf16&quot;: ...}</translation>
    </message>
    <message>
        <source>a zero byte stands outside of a text</source>
        <translation>нулевой байт стоит вне текста</translation>
    </message>
    <message>
        <source>the text has %1 bytes, more than the %2 that are read</source>
        <translation>в тексте %1 байт, больше читаемых %2</translation>
    </message>
    <message>
        <source>a number is not finite</source>
        <translation>число не конечно</translation>
    </message>
    <message>
        <source>the tree is too large to be written</source>
        <translation>дерево слишком велико для записи</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>такого узла нет</translation>
    </message>
    <message>
        <source>document types and entities are not accepted</source>
        <translation>типы документа и сущности не принимаются</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot; is unknown</source>
        <translation>сущность «%1» неизвестна</translation>
    </message>
    <message>
        <source>unknown element &quot;%1&quot;</source>
        <translation>неизвестный элемент «%1»</translation>
    </message>
    <message>
        <source>text stands between elements</source>
        <translation>между элементами стоит текст</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>документ пуст</translation>
    </message>
    <message>
        <source>unknown attribute %1=&quot;%2&quot;</source>
        <translation>неизвестный атрибут %1=&quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown type &quot;%1&quot;</source>
        <translation>неизвестный тип «%1»</translation>
    </message>
    <message>
        <source>the element has no type</source>
        <translation>у элемента нет типа</translation>
    </message>
    <message>
        <source>only a string has an encoding</source>
        <translation>кодировка бывает только у строки</translation>
    </message>
    <message>
        <source>there is no name to be decoded</source>
        <translation>нет имени для декодирования</translation>
    </message>
    <message>
        <source>the name is no base64 text of UTF-16</source>
        <translation>имя — не текст UTF-16 в base64</translation>
    </message>
    <message>
        <source>the string is no base64 text of UTF-16</source>
        <translation>строка — не текст UTF-16 в base64</translation>
    </message>
    <message>
        <source>a null holds no value</source>
        <translation>null не содержит значения</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» — ни true, ни false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number of 64 bits</source>
        <translation>«%1» — не целое 64-битное число</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>«%1» — не конечное число</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>текст не в UTF-8</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>остановлено</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not accepted</source>
        <translation>кодировка «%1» не принимается</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>у элемента больше %1 атрибутов</translation>
    </message>
</context>
<context>
    <name>panel::CellPage</name>
    <message>
        <source>No project is in use.</source>
        <translation>Проект не загружен.</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>Проект %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>Нет контроллера</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Работает</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Авария</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
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
        <source>no pallet</source>
        <translation>нет паллеты</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>%1 of %2 boxes</source>
        <translation>%1 из %2 коробок</translation>
    </message>
    <message>
        <source>No vacuum</source>
        <translation>Нет вакуума</translation>
    </message>
    <message>
        <source>Lost box</source>
        <translation>Потеря коробки</translation>
    </message>
    <message>
        <source>Conveyor jam</source>
        <translation>Затор конвейера</translation>
    </message>
    <message>
        <source>Pallet pulled</source>
        <translation>Паллета убрана</translation>
    </message>
    <message>
        <source>Emergency stop</source>
        <translation>Аварийный стоп</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>Столкновение</translation>
    </message>
    <message>
        <source>Power cut</source>
        <translation>Сбой питания</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Сигнал</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Задача</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>Процедура</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Layer / piece</source>
        <translation>Слой / изделие</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1: вкл.</translation>
    </message>
    <message>
        <source>Violations: %1, lost boxes: %2</source>
        <translation>Нарушений: %1, потеряно коробок: %2</translation>
    </message>
    <message>
        <source>%1: waiting for the controller</source>
        <translation>%1: ожидание контроллера</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>product at the stop</source>
        <translation>изделие у упора</translation>
    </message>
    <message>
        <source>product in %1 mm</source>
        <translation>изделие через %1 mm</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>затор</translation>
    </message>
    <message>
        <source>vacuum</source>
        <translation>вакуум</translation>
    </message>
    <message>
        <source>no vacuum</source>
        <translation>нет вакуума</translation>
    </message>
    <message>
        <source>carries a product</source>
        <translation>несёт изделие</translation>
    </message>
    <message>
        <source>Conveyor: %1</source>
        <translation>Конвейер: %1</translation>
    </message>
    <message>
        <source>Gripper: %1</source>
        <translation>Захват: %1</translation>
    </message>
    <message>
        <source>Lift column: %1 mm, %2</source>
        <translation>Колонна: %1 mm, %2</translation>
    </message>
    <message>
        <source>Task, line</source>
        <translation>Задача, строка</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Тела</translation>
    </message>
    <message>
        <source>switch on disabled</source>
        <translation>включение запрещено</translation>
    </message>
    <message>
        <source>ready to switch on</source>
        <translation>готов к включению</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>включён</translation>
    </message>
    <message>
        <source>operation enabled</source>
        <translation>работа разрешена</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>неисправность</translation>
    </message>
</context>
<context>
    <name>panel::CellTable</name>
    <message>
        <source>runs</source>
        <translation>идёт</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>ждёт</translation>
    </message>
    <message>
        <source>moves</source>
        <translation>движется</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>пауза</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>завершена</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>сбой</translation>
    </message>
    <message>
        <source>on</source>
        <translation>вкл.</translation>
    </message>
</context>
<context>
    <name>panel::ControllerPage</name>
    <message>
        <source>Moving</source>
        <translation>Движется</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>Стоит</translation>
    </message>
</context>
<context>
    <name>panel::ExportDialog</name>
    <message>
        <source>Table (CSV)</source>
        <translation>Таблица (CSV)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>Файлу нужно имя.</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot; and does not begin with &quot;.&quot;.</source>
        <translation>Имя не содержит «/» и не начинается с «.».</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Заменить файл?</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 уже существует.</translation>
    </message>
</context>
<context>
    <name>panel::LogModel</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Робот</translation>
    </message>
</context>
<context>
    <name>panel::LogPage</name>
    <message>
        <source>All levels</source>
        <translation>Все уровни</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Предупреждения</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>Ошибки и предупреждения</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Записей: %1</translation>
    </message>
    <message>
        <source>Records: %1 of %2</source>
        <translation>Записей: %1 из %2</translation>
    </message>
    <message>
        <source>%1 records were exported to %2.</source>
        <translation>Экспортировано записей: %1, файл %2.</translation>
    </message>
    <message>
        <source>The log was not exported. %1</source>
        <translation>Журнал не экспортирован. %1</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>All %1 records are deleted for good, those that the filter hides as well. Export them first to keep them.</source>
        <translation>Все записи (%1) будут удалены навсегда, скрытые фильтром тоже. Чтобы сохранить их, сначала сделайте экспорт.</translation>
    </message>
</context>
<context>
    <name>panel::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>panel::Navigator</name>
    <message>
        <source>Packages</source>
        <translation>Пакеты</translation>
    </message>
    <message>
        <source>Navigator</source>
        <translation>Навигатор</translation>
    </message>
</context>
<context>
    <name>panel::Options</name>
    <message>
        <source>Folder of the stored data, settings and logs.</source>
        <translation>Папка данных, настроек и журналов.</translation>
    </message>
    <message>
        <source>Controller workspace.</source>
        <translation>Рабочая папка контроллера.</translation>
    </message>
    <message>
        <source>en, cn, ru, jp or kr.</source>
        <translation>en, cn, ru, jp или kr.</translation>
    </message>
    <message>
        <source>Plug-in library to load; may be given several times.</source>
        <translation>Загружаемая библиотека расширения; можно указать несколько раз.</translation>
    </message>
    <message>
        <source>Recipes (file or folder) for an empty store; may be given several times.</source>
        <translation>Рецепты (файл или папка) для пустого хранилища; можно указать несколько раз.</translation>
    </message>
    <message>
        <source>Desktop panel of the palletizing workstation.</source>
        <translation>Настольная панель станции паллетирования.</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>Неизвестный аргумент «%1».</translation>
    </message>
    <message>
        <source>Unknown language &quot;%1&quot;; there are %2.</source>
        <translation>Неизвестный язык «%1»; есть %2.</translation>
    </message>
    <message>
        <source>Robot controller: inprocess (simulated, the default), spawn (simulated, in a process of its own), HOST:PORT or none.</source>
        <translation>Контроллер робота: inprocess (имитатор, по умолчанию), spawn (имитатор в отдельном процессе), HOST:PORT или none.</translation>
    </message>
    <message>
        <source>Unknown controller &quot;%1&quot;; there are inprocess, spawn, none and HOST:PORT.</source>
        <translation>Неизвестный контроллер «%1»; есть inprocess, spawn, none и HOST:PORT.</translation>
    </message>
    <message>
        <source>Fields that are touched open a keypad or keyboard.</source>
        <translation>Касание поля открывает цифровую или буквенную клавиатуру.</translation>
    </message>
</context>
<context>
    <name>panel::PanelWindow</name>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Проблемы</translation>
    </message>
    <message>
        <source>Robot panel</source>
        <translation>Панель робота</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>Страницы «%1» нет.</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>Данные нельзя сохранить</translation>
    </message>
    <message>
        <source>Changes since the last saving are lost when the panel closes now.</source>
        <translation>Если закрыть панель сейчас, изменения после последнего сохранения пропадут.</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>Не закрывать</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Контроллер</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Ячейка</translation>
    </message>
</context>
<context>
    <name>panel::ProblemPage</name>
    <message>
        <source>The panel did not start completely</source>
        <translation>Панель запустилась не полностью</translation>
    </message>
</context>
<context>
    <name>panel::StatusStrip</name>
    <message>
        <source>Controller</source>
        <translation>Контроллер</translation>
    </message>
    <message>
        <source>Last notice</source>
        <translation>Последнее уведомление</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Controller %1</source>
        <translation>Контроллер %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>Нет контроллера</translation>
    </message>
    <message>
        <source>Check controller</source>
        <translation>Проверьте контроллер</translation>
    </message>
    <message>
        <source>Controller refuses</source>
        <translation>Контроллер отказал</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>У этой панели нет связи с контроллером.</translation>
    </message>
    <message>
        <source>Editing goes on; the recipes stay in the panel.</source>
        <translation>Править можно; рецепты остаются в панели.</translation>
    </message>
</context>
</TS>
