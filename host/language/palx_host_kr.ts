<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export the log</source>
        <translation>로그 내보내기</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Kind of the file</source>
        <translation>파일 종류</translation>
    </message>
    <message>
        <source>The file that is written</source>
        <translation>쓸 파일</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>기록 수</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Export the shown records</source>
        <translation>표시된 기록 내보내기</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>로그 지우기</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search the log</source>
        <translation>로그 검색</translation>
    </message>
    <message>
        <source>The chosen record</source>
        <translation>선택한 기록</translation>
    </message>
</context>
<context>
    <name>PanelCellPage</name>
    <message>
        <source>State of the programs</source>
        <translation>프로그램 상태</translation>
    </message>
    <message>
        <source>Why, and which project</source>
        <translation>이유와 프로젝트</translation>
    </message>
    <message>
        <source>Time in the cell</source>
        <translation>셀의 시간</translation>
    </message>
    <message>
        <source>The cell</source>
        <translation>셀</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>왼쪽으로 돌리기</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>오른쪽으로 돌리기</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>1 x</source>
        <translation>1 x</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>실시간</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>한 단계</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>조작반</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>신호</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>변수</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>고장</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Start button of the cell</source>
        <translation>셀 시작 버튼</translation>
    </message>
    <message>
        <source>Stop button of the cell</source>
        <translation>셀 정지 버튼</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>리셋</translation>
    </message>
    <message>
        <source>Reset button of the cell</source>
        <translation>셀 리셋 버튼</translation>
    </message>
    <message>
        <source>Clear gripper</source>
        <translation>그리퍼 비우기</translation>
    </message>
    <message>
        <source>Left arrow button of the cell</source>
        <translation>셀 왼쪽 화살표 버튼</translation>
    </message>
    <message>
        <source>Right arrow button of the cell</source>
        <translation>셀 오른쪽 화살표 버튼</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>왼쪽 팔레트</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>치우기</translation>
    </message>
    <message>
        <source>Left pallet away</source>
        <translation>왼쪽 팔레트 치우기</translation>
    </message>
    <message>
        <source>Bring empty</source>
        <translation>빈 것 놓기</translation>
    </message>
    <message>
        <source>Left pallet: bring an empty one</source>
        <translation>왼쪽 팔레트: 빈 것 놓기</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>오른쪽 팔레트</translation>
    </message>
    <message>
        <source>Right pallet away</source>
        <translation>오른쪽 팔레트 치우기</translation>
    </message>
    <message>
        <source>Right pallet: bring an empty one</source>
        <translation>오른쪽 팔레트: 빈 것 놓기</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Input on</source>
        <translation>입력 켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Input off</source>
        <translation>입력 끔</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>누르기</translation>
    </message>
    <message>
        <source>Press for half a second</source>
        <translation>0.5초 누르기</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>변수 검색</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>새 값</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Set the variable</source>
        <translation>변수 설정</translation>
    </message>
    <message>
        <source>Number of violations</source>
        <translation>위반 수</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>위반</translation>
    </message>
    <message>
        <source>The chosen violation</source>
        <translation>선택한 위반</translation>
    </message>
    <message>
        <source>What was asked and answered</source>
        <translation>요청과 응답</translation>
    </message>
    <message>
        <source>Speed that the controller tells</source>
        <translation>컨트롤러가 알리는 속도</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Conveyor, gripper and lift column</source>
        <translation>컨베이어, 그리퍼, 승강 칼럼</translation>
    </message>
</context>
<context>
    <name>PanelControllerPage</name>
    <message>
        <source>Controller</source>
        <translation>컨트롤러</translation>
    </message>
    <message>
        <source>State of the link</source>
        <translation>연결 상태</translation>
    </message>
    <message>
        <source>What the state of the link means</source>
        <translation>연결 상태의 뜻</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Controller name</source>
        <translation>컨트롤러 이름</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>소프트웨어</translation>
    </message>
    <message>
        <source>Controller software</source>
        <translation>컨트롤러 소프트웨어</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>로봇</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Motion of the robot</source>
        <translation>로봇의 동작</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>사용 중인 툴</translation>
    </message>
    <message>
        <source>Current project</source>
        <translation>현재 프로젝트</translation>
    </message>
    <message>
        <source>Start project</source>
        <translation>시작 프로젝트</translation>
    </message>
    <message>
        <source>Project that starts by itself</source>
        <translation>자동으로 시작되는 프로젝트</translation>
    </message>
</context>
<context>
    <name>TextKeyboard</name>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Delete the letter before</source>
        <translation>앞 글자 삭제</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>텍스트 지우기</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>대문자</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>공백</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>왼쪽으로</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>오른쪽으로</translation>
    </message>
</context>
<context>
    <name>bwaf::BModule</name>
    <message>
        <source>The data of the module %1 is incomplete: %2</source>
        <translation>모듈 %1의 데이터가 불완전합니다: %2</translation>
    </message>
</context>
<context>
    <name>controller::Texts</name>
    <message>
        <source>out of reach: the wrist would stand %1 mm from the shoulder, the arm reaches %2 mm</source>
        <translation>도달할 수 없음: 손목이 어깨에서 %1 mm 떨어지지만 암은 %2 mm까지 도달합니다</translation>
    </message>
    <message>
        <source>joint %1 would stand at %2°, its limits are %3° and %4°</source>
        <translation>축 %1이(가) %2°가 되지만 한계는 %3° 및 %4°입니다</translation>
    </message>
    <message>
        <source>The panel speaks version %1 of the link, the controller version %2.</source>
        <translation>연결 버전이 패널은 %1, 컨트롤러는 %2입니다.</translation>
    </message>
    <message>
        <source>a Hello without a session</source>
        <translation>세션이 없는 Hello</translation>
    </message>
    <message>
        <source>serves another panel</source>
        <translation>다른 패널에 연결되어 있습니다</translation>
    </message>
    <message>
        <source>nothing is done before a Hello was accepted</source>
        <translation>Hello가 수락되기 전에는 아무것도 수행하지 않습니다</translation>
    </message>
    <message>
        <source>a panel sends no message of the kind %1</source>
        <translation>패널은 %1 종류의 메시지를 보내지 않습니다</translation>
    </message>
    <message>
        <source>the controller ended the connection</source>
        <translation>컨트롤러가 연결을 종료했습니다</translation>
    </message>
    <message>
        <source>signals cannot be caught</source>
        <translation>신호를 받을 수 없습니다</translation>
    </message>
    <message>
        <source>after %1 % of the straight way joint %2 would turn by %3° at one place</source>
        <translation>직선 경로의 %1 % 지점에서 축 %2이(가) 한 위치에서 %3° 회전하게 됩니다</translation>
    </message>
    <message>
        <source>after %1 % of the straight way: %2</source>
        <translation>직선 경로의 %1 % 지점: %2</translation>
    </message>
    <message>
        <source>no recipe: %1</source>
        <translation>레시피가 아님: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no recipe: %2</source>
        <translation>&quot;%1&quot;은(는) 레시피가 아닙니다: %2</translation>
    </message>
    <message>
        <source>this is no list of recipes</source>
        <translation>레시피 목록이 아닙니다</translation>
    </message>
    <message>
        <source>the name is there twice</source>
        <translation>이름이 두 번 있습니다</translation>
    </message>
    <message>
        <source>entry %1: %2</source>
        <translation>항목 %1: %2</translation>
    </message>
    <message>
        <source>&quot;index&quot; is missing or no whole number</source>
        <translation>&quot;index&quot;가 없거나 정수가 아닙니다</translation>
    </message>
    <message>
        <source>there is no recipe %1, there are %2</source>
        <translation>레시피 %1이(가) 없습니다. 모두 %2개입니다</translation>
    </message>
    <message>
        <source>&quot;name&quot; is missing or no text</source>
        <translation>&quot;name&quot;이 없거나 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>recipe %1 has the name &quot;%2&quot; already</source>
        <translation>레시피 %1이(가) 이미 이름 &quot;%2&quot;을(를) 가지고 있습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of %2 numbers</source>
        <translation>&quot;%1&quot;은(는) 숫자 %2개의 목록이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1.#%2&quot; is no number</source>
        <translation>&quot;%1.#%2&quot;은(는) 숫자가 아닙니다</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot;에서: %2</translation>
    </message>
    <message>
        <source>this is no product with its points</source>
        <translation>포인트가 있는 제품이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;points.put&quot; is no list of layers</source>
        <translation>&quot;points.put&quot;은 단 목록이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1&quot; is no list of products</source>
        <translation>&quot;points.put.#%1&quot;은(는) 제품 목록이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1.#%2&quot;: %3</source>
        <translation>&quot;points.put.#%1.#%2&quot;: %3</translation>
    </message>
    <message>
        <source>this is no record with names</source>
        <translation>이름이 있는 레코드가 아닙니다</translation>
    </message>
    <message>
        <source>&quot;points&quot; is missing</source>
        <translation>&quot;points&quot;가 없습니다</translation>
    </message>
    <message>
        <source>&quot;layers&quot; is no list</source>
        <translation>&quot;layers&quot;는 목록이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is lost</source>
        <translation>&quot;%1&quot;이(가) 손실되었습니다</translation>
    </message>
    <message>
        <source>&quot;type&quot; is &quot;%1&quot;, neither &quot;l&quot; nor &quot;j&quot;</source>
        <translation>&quot;type&quot;이 &quot;%1&quot;(으)로, &quot;l&quot;도 &quot;j&quot;도 아닙니다</translation>
    </message>
    <message>
        <source>&quot;motion.speed&quot; is no speed: %1</source>
        <translation>&quot;motion.speed&quot;가 속도가 아닙니다: %1</translation>
    </message>
    <message>
        <source>&quot;point&quot; is missing</source>
        <translation>&quot;point&quot;가 없습니다</translation>
    </message>
    <message>
        <source>in &quot;point&quot;: %1</source>
        <translation>&quot;point&quot;에서: %1</translation>
    </message>
    <message>
        <source>the robot is moving already</source>
        <translation>로봇이 이미 움직이고 있습니다</translation>
    </message>
    <message>
        <source>stopped: no sign from the held button for %1 ms</source>
        <translation>정지: 누르고 있는 버튼의 신호가 %1 ms 동안 없었습니다</translation>
    </message>
    <message>
        <source>this is no file of a controller</source>
        <translation>컨트롤러의 파일이 아닙니다</translation>
    </message>
    <message>
        <source>length and checksum do not fit the content</source>
        <translation>길이와 체크섬이 내용과 맞지 않습니다</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be made</source>
        <translation>폴더 &quot;%1&quot;을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>another controller uses the folder &quot;%1&quot;</source>
        <translation>다른 컨트롤러가 폴더 &quot;%1&quot;을(를) 사용하고 있습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and was set aside as &quot;%3&quot;</source>
        <translation>&quot;%1&quot;이(가) 손상되어(%2) &quot;%3&quot;(으)로 따로 보관했습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and cannot be moved</source>
        <translation>&quot;%1&quot;이(가) 손상되었으며(%2) 옮길 수 없습니다</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: 폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>시뮬레이션 컨트롤러</translation>
    </message>
    <message>
        <source>nothing will be kept: %1</source>
        <translation>아무것도 보관되지 않습니다: %1</translation>
    </message>
    <message>
        <source>The controller cannot keep its state: %1</source>
        <translation>컨트롤러가 상태를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the panel does not write &quot;%1&quot;</source>
        <translation>패널은 &quot;%1&quot;에 쓰지 않습니다</translation>
    </message>
    <message>
        <source>what was written at &quot;%1&quot; is nested too deep</source>
        <translation>&quot;%1&quot;에 쓰인 내용이 너무 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>there is no place &quot;%1&quot;</source>
        <translation>위치 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is no event &quot;%1&quot;</source>
        <translation>이벤트 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>stopped: the link to the panel is lost</source>
        <translation>정지: 패널과의 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing or no text</source>
        <translation>&quot;%1&quot;이(가) 없거나 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>the controller knows no request &quot;%1&quot;</source>
        <translation>컨트롤러가 요청 &quot;%1&quot;을(를) 알지 못합니다</translation>
    </message>
    <message>
        <source>the robot is moving</source>
        <translation>로봇이 움직이고 있습니다</translation>
    </message>
    <message>
        <source>the controller does not answer</source>
        <translation>컨트롤러가 응답하지 않습니다</translation>
    </message>
    <message>
        <source>cannot listen on port %1: %2</source>
        <translation>포트 %1에서 수신 대기할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is missing</source>
        <translation>&quot;load.mass&quot;가 없습니다</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is no mass: %1</source>
        <translation>&quot;load.mass&quot;가 질량이 아닙니다: %1</translation>
    </message>
    <message>
        <source>&quot;name&quot; is no text</source>
        <translation>&quot;name&quot;이 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; stands for no tool</source>
        <translation>이름 &quot;%1&quot;은(는) 툴 없음을 뜻합니다</translation>
    </message>
    <message>
        <source>no toolset: %1</source>
        <translation>툴셋이 아님: %1</translation>
    </message>
    <message>
        <source>there are %1 tools already, no more are kept</source>
        <translation>툴이 이미 %1개 있어 더 보관할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no toolset &quot;%1&quot;</source>
        <translation>툴셋 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is no variable &quot;%1&quot;</source>
        <translation>변수 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; is not persistent</source>
        <translation>변수 &quot;%1&quot;은(는) 영구 변수가 아닙니다</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; of type %2 does not take &quot;%3&quot;</source>
        <translation>%2 형식의 변수 &quot;%1&quot;에는 &quot;%3&quot;을(를) 넣을 수 없습니다</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; has no place for a value</source>
        <translation>변수 &quot;%1&quot;에 값을 넣을 자리가 없습니다</translation>
    </message>
    <message>
        <source>this is no map of variables</source>
        <translation>변수 맵이 아닙니다</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 ended</source>
        <translation>%1이(가) 종료되었습니다</translation>
    </message>
    <message>
        <source>stopped: another move was asked for</source>
        <translation>정지: 다른 이동이 요청됨</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be written: %2</source>
        <translation>폴더 &quot;%1&quot;에 쓸 수 없음: %2</translation>
    </message>
    <message>
        <source>The project %1 cannot be built: it has no folder in the workspace &quot;%2&quot;</source>
        <translation>프로젝트 %1을(를) 빌드할 수 없습니다. 작업 공간 &quot;%2&quot;에 폴더가 없습니다</translation>
    </message>
    <message>
        <source>there is no recipe &quot;%1&quot;</source>
        <translation>레시피 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; cannot be used: %2</source>
        <translation>레시피 &quot;%1&quot;을(를) 사용할 수 없음: %2</translation>
    </message>
    <message>
        <source>recipe %1</source>
        <translation>레시피 %1</translation>
    </message>
    <message>
        <source>left recipe %1</source>
        <translation>왼쪽 레시피 %1</translation>
    </message>
    <message>
        <source>right recipe %1</source>
        <translation>오른쪽 레시피 %1</translation>
    </message>
    <message>
        <source>there is no %1, there are %2</source>
        <translation>%1이(가) 없습니다. %2개가 있습니다</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no layer %2, it has %3</source>
        <translation>레시피 &quot;%1&quot;에 %2단이 없습니다. %3단입니다</translation>
    </message>
    <message>
        <source>layer %1 of the recipe &quot;%2&quot; has no piece %3, it has %4</source>
        <translation>레시피 &quot;%2&quot;의 %1단에 %3번째가 없습니다. %4개입니다</translation>
    </message>
    <message>
        <source>no pallet point is set yet</source>
        <translation>팔레트 포인트가 아직 없습니다</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>포인트가 없습니다</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no point &quot;%2&quot; for layer %3, piece %4</source>
        <translation>레시피 &quot;%1&quot;에 %3단 %4번째의 포인트 &quot;%2&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>in &quot;%1&quot; of the recipe &quot;%2&quot;: %3</source>
        <translation>레시피 &quot;%2&quot;의 &quot;%1&quot;: %3</translation>
    </message>
    <message>
        <source>its work object needs three calibration points</source>
        <translation>작업 객체에는 보정 포인트 3개가 필요합니다</translation>
    </message>
    <message>
        <source>start button</source>
        <translation>시작 버튼</translation>
    </message>
    <message>
        <source>stop button</source>
        <translation>정지 버튼</translation>
    </message>
    <message>
        <source>reset button</source>
        <translation>리셋 버튼</translation>
    </message>
    <message>
        <source>left arrow button</source>
        <translation>왼쪽 화살표 버튼</translation>
    </message>
    <message>
        <source>right arrow button</source>
        <translation>오른쪽 화살표 버튼</translation>
    </message>
    <message>
        <source>left pallet in place</source>
        <translation>왼쪽 팔레트 있음</translation>
    </message>
    <message>
        <source>right pallet in place</source>
        <translation>오른쪽 팔레트 있음</translation>
    </message>
    <message>
        <source>scanner 1, input 1</source>
        <translation>스캐너 1, 입력 1</translation>
    </message>
    <message>
        <source>scanner 1, input 2</source>
        <translation>스캐너 1, 입력 2</translation>
    </message>
    <message>
        <source>scanner 1, input 3</source>
        <translation>스캐너 1, 입력 3</translation>
    </message>
    <message>
        <source>scanner 2, input 1</source>
        <translation>스캐너 2, 입력 1</translation>
    </message>
    <message>
        <source>scanner 2, input 2</source>
        <translation>스캐너 2, 입력 2</translation>
    </message>
    <message>
        <source>scanner 2, input 3</source>
        <translation>스캐너 2, 입력 3</translation>
    </message>
    <message>
        <source>air pressure</source>
        <translation>공기압</translation>
    </message>
    <message>
        <source>product in place</source>
        <translation>제품 있음</translation>
    </message>
    <message>
        <source>start lamp</source>
        <translation>시작 램프</translation>
    </message>
    <message>
        <source>stop lamp</source>
        <translation>정지 램프</translation>
    </message>
    <message>
        <source>reset lamp</source>
        <translation>리셋 램프</translation>
    </message>
    <message>
        <source>left arrow lamp</source>
        <translation>왼쪽 화살표 램프</translation>
    </message>
    <message>
        <source>right arrow lamp</source>
        <translation>오른쪽 화살표 램프</translation>
    </message>
    <message>
        <source>suction</source>
        <translation>흡착</translation>
    </message>
    <message>
        <source>scanner 1, zone 1</source>
        <translation>스캐너 1, 구역 1</translation>
    </message>
    <message>
        <source>scanner 1, zone 2</source>
        <translation>스캐너 1, 구역 2</translation>
    </message>
    <message>
        <source>scanner 2, zone 1</source>
        <translation>스캐너 2, 구역 1</translation>
    </message>
    <message>
        <source>scanner 2, zone 2</source>
        <translation>스캐너 2, 구역 2</translation>
    </message>
    <message>
        <source>left beacon red</source>
        <translation>왼쪽 경광등 빨강</translation>
    </message>
    <message>
        <source>left beacon yellow</source>
        <translation>왼쪽 경광등 노랑</translation>
    </message>
    <message>
        <source>left beacon green</source>
        <translation>왼쪽 경광등 초록</translation>
    </message>
    <message>
        <source>left buzzer</source>
        <translation>왼쪽 부저</translation>
    </message>
    <message>
        <source>right beacon red</source>
        <translation>오른쪽 경광등 빨강</translation>
    </message>
    <message>
        <source>right beacon yellow</source>
        <translation>오른쪽 경광등 노랑</translation>
    </message>
    <message>
        <source>right beacon green</source>
        <translation>오른쪽 경광등 초록</translation>
    </message>
    <message>
        <source>right buzzer</source>
        <translation>오른쪽 부저</translation>
    </message>
    <message>
        <source>conveyor forward</source>
        <translation>컨베이어 정방향</translation>
    </message>
    <message>
        <source>conveyor reverse</source>
        <translation>컨베이어 역방향</translation>
    </message>
    <message>
        <source>&quot;on&quot; is missing or neither true nor false</source>
        <translation>&quot;on&quot;이 없거나 true도 false도 아닙니다</translation>
    </message>
    <message>
        <source>and %1 more problems in the programs</source>
        <translation>프로그램에 문제 %1개 더 있음</translation>
    </message>
    <message>
        <source>there is no current project</source>
        <translation>현재 프로젝트가 없습니다</translation>
    </message>
    <message>
        <source>the project %1 has no folder in the workspace</source>
        <translation>프로젝트 %1의 폴더가 작업 공간에 없습니다</translation>
    </message>
    <message>
        <source>the programs have problems: %1</source>
        <translation>프로그램에 문제가 있음: %1</translation>
    </message>
    <message>
        <source>paused at the panel</source>
        <translation>패널에서 일시 정지</translation>
    </message>
    <message>
        <source>&quot;factor&quot; is no number from %1 to %2</source>
        <translation>&quot;factor&quot;이(가) %1 ~ %2의 수가 아닙니다</translation>
    </message>
    <message>
        <source>there is no input &quot;%1&quot;</source>
        <translation>입력 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is no fault &quot;%1&quot;, there are %2</source>
        <translation>고장 &quot;%1&quot;이(가) 없습니다. 가능한 것: %2</translation>
    </message>
    <message>
        <source>&quot;side&quot; is neither 0 (left) nor 1 (right)</source>
        <translation>&quot;side&quot;가 0(왼쪽)도 1(오른쪽)도 아닙니다</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, neither &quot;take&quot; nor &quot;bring&quot;</source>
        <translation>&quot;action&quot;이 &quot;%1&quot;(으)로, &quot;take&quot;도 &quot;bring&quot;도 아닙니다</translation>
    </message>
    <message>
        <source>Program: %1</source>
        <translation>프로그램: %1</translation>
    </message>
    <message>
        <source>%1 %2:%3, layer %4, piece %5: %6</source>
        <translation>%1 %2:%3, %4단, %5번째: %6</translation>
    </message>
    <message>
        <source>this is no name of a file</source>
        <translation>파일 이름이 아닙니다</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>파일을 읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>파일이 %1바이트보다 큽니다</translation>
    </message>
    <message>
        <source>there is no kind of task &quot;%1&quot;</source>
        <translation>작업 종류 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a task</source>
        <translation>&quot;%1&quot;은(는) 작업 이름이 아닙니다</translation>
    </message>
    <message>
        <source>the emergency stop is pressed</source>
        <translation>비상 정지가 눌려 있습니다</translation>
    </message>
    <message>
        <source>the robot was stopped by a collision; reset first</source>
        <translation>로봇이 충돌로 정지했습니다. 먼저 리셋하십시오</translation>
    </message>
    <message>
        <source>somebody stands in the field of scanner %1</source>
        <translation>스캐너 %1의 영역에 사람이 있습니다</translation>
    </message>
    <message>
        <source>the project has no motion task</source>
        <translation>프로젝트에 동작 작업이 없습니다</translation>
    </message>
    <message>
        <source>no program runs</source>
        <translation>실행 중인 프로그램이 없습니다</translation>
    </message>
    <message>
        <source>the program runs; pause it first</source>
        <translation>프로그램이 실행 중입니다. 먼저 일시 정지하십시오</translation>
    </message>
    <message>
        <source>the power was cut</source>
        <translation>전원이 끊겼습니다</translation>
    </message>
    <message>
        <source>the stop button was pressed</source>
        <translation>정지 버튼이 눌렸습니다</translation>
    </message>
    <message>
        <source>paused by the program, %1</source>
        <translation>프로그램에 의한 일시 정지, %1</translation>
    </message>
    <message>
        <source>the program is at its end</source>
        <translation>프로그램이 끝났습니다</translation>
    </message>
    <message>
        <source>one step was made, to %1</source>
        <translation>한 단계 실행, %1까지</translation>
    </message>
    <message>
        <source>a program runs; pause it first</source>
        <translation>프로그램이 실행 중입니다. 먼저 일시 정지하십시오</translation>
    </message>
    <message>
        <source>the robot is braking</source>
        <translation>로봇이 감속 중입니다</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, not &quot;clear&quot;</source>
        <translation>&quot;action&quot;이 &quot;clear&quot;가 아니라 &quot;%1&quot;입니다</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1: this is no file</source>
        <translation>%1: 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1: it is nested too deep</source>
        <translation>%1: 중첩이 너무 깊습니다</translation>
    </message>
    <message>
        <source>%1: there is no list</source>
        <translation>%1: 목록이 없습니다</translation>
    </message>
    <message>
        <source>The project %1 cannot be read: %2</source>
        <translation>프로젝트 %1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 does not take its tasks and variables: %2</source>
        <translation>프로젝트 %1의 폴더에 작업과 변수를 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 was exchanged while its program runs; what is in it counts when the program is stopped and started again</source>
        <translation>프로그램 실행 중에 프로젝트 %1의 폴더가 교체되었습니다. 프로그램을 정지했다가 다시 시작하면 그 내용이 적용됩니다</translation>
    </message>
    <message>
        <source>The project %1 has no tasks: edit it, and they are made anew</source>
        <translation>프로젝트 %1에 작업이 없습니다. 편집하면 새로 만들어집니다</translation>
    </message>
    <message>
        <source>the folder of the project was exchanged, and its counters with it: look at them before it runs</source>
        <translation>프로젝트 폴더와 카운터가 교체되었습니다. 실행하기 전에 확인하십시오</translation>
    </message>
</context>
<context>
    <name>host::ControllerLink</name>
    <message>
        <source>Looking for the controller.</source>
        <translation>컨트롤러를 찾고 있습니다.</translation>
    </message>
    <message>
        <source>The link to the controller is closed.</source>
        <translation>컨트롤러와의 연결이 닫혔습니다.</translation>
    </message>
    <message>
        <source>The controller is being asked for its state.</source>
        <translation>컨트롤러의 상태를 조회하고 있습니다.</translation>
    </message>
    <message>
        <source>The link to the controller broke: %1. Edits stay in the panel and are sent when it is back. Check the cable and the controller.</source>
        <translation>컨트롤러와의 연결이 끊어졌습니다: %1. 변경 내용은 패널에 남아 있다가 복구되면 전송됩니다. 케이블과 컨트롤러를 확인하십시오.</translation>
    </message>
    <message>
        <source>The controller cannot be reached: %1. Check the cable and whether it is switched on.</source>
        <translation>컨트롤러에 연결할 수 없습니다: %1. 케이블과 전원을 확인하십시오.</translation>
    </message>
    <message>
        <source>it did not answer the greeting</source>
        <translation>인사에 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>it was silent for %1 s</source>
        <translation>%1 s 동안 응답이 없었습니다</translation>
    </message>
    <message>
        <source>An edit cannot be sent to the controller: %1</source>
        <translation>변경 내용을 컨트롤러로 보낼 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the controller must not send such a message</source>
        <translation>컨트롤러는 이런 메시지를 보내면 안 됩니다</translation>
    </message>
    <message>
        <source>The controller speaks version %1 of the link, this panel version %2. Update the older one.</source>
        <translation>연결 버전이 컨트롤러는 %1, 이 패널은 %2입니다. 이전 버전 쪽을 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Controller %1 connected, software %2, robot %3.</source>
        <translation>컨트롤러 %1 연결됨, 소프트웨어 %2, 로봇 %3.</translation>
    </message>
    <message>
        <source>The controller serves another panel. Close the link there; this panel asks again by itself.</source>
        <translation>컨트롤러가 다른 패널에 연결되어 있습니다. 그쪽 연결을 닫으십시오. 이 패널은 자동으로 다시 시도합니다.</translation>
    </message>
    <message>
        <source>The controller refuses this panel&apos;s version of the link: %1. Update the older one.</source>
        <translation>컨트롤러가 이 패널의 연결 버전을 거부했습니다: %1. 이전 버전 쪽을 업데이트하십시오.</translation>
    </message>
    <message>
        <source>The controller sent something that cannot be read and was left out: %1.</source>
        <translation>컨트롤러가 읽을 수 없는 내용을 보내 무시했습니다: %1.</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>이 패널은 컨트롤러와 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The controller did not carry out &quot;%1&quot;: %2</source>
        <translation>컨트롤러가 &quot;%1&quot;을(를) 수행하지 않았습니다: %2</translation>
    </message>
    <message>
        <source>The controller is not connected.</source>
        <translation>컨트롤러가 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The link to the controller broke before it answered.</source>
        <translation>컨트롤러가 응답하기 전에 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The controller did not answer within %1 s.</source>
        <translation>컨트롤러가 %1 s 안에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no node that a controller may change</source>
        <translation>&quot;%1&quot;은(는) 컨트롤러가 변경할 수 있는 노드가 아닙니다</translation>
    </message>
    <message>
        <source>there is no place for &quot;%1&quot;</source>
        <translation>&quot;%1&quot;을(를) 둘 자리가 없습니다</translation>
    </message>
    <message>
        <source>a greeting without a state</source>
        <translation>상태가 없는 인사</translation>
    </message>
    <message>
        <source>The controller did not take a message of the panel: %1.</source>
        <translation>컨트롤러가 패널의 메시지를 받아들이지 않았습니다: %1.</translation>
    </message>
    <message>
        <source>Messages that could not be read: %1.</source>
        <translation>읽을 수 없는 메시지: %1.</translation>
    </message>
    <message>
        <source>Answers that came late or twice: %1.</source>
        <translation>늦거나 두 번 온 응답: %1.</translation>
    </message>
    <message>
        <source>Requests without an answer: %1.</source>
        <translation>응답이 없는 요청: %1.</translation>
    </message>
    <message>
        <source>The controller answered a request too late or twice. The answer was dropped.</source>
        <translation>컨트롤러가 너무 늦게 또는 두 번 응답했습니다. 응답을 버렸습니다.</translation>
    </message>
</context>
<context>
    <name>host::HostSession</name>
    <message>
        <source>The panel cannot start</source>
        <translation>패널을 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>another session runs in this process</source>
        <translation>이 프로세스에서 다른 세션이 실행 중입니다</translation>
    </message>
    <message>
        <source>A folder cannot be made</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>nothing is stored there</source>
        <translation>그곳에는 아무것도 저장되지 않습니다</translation>
    </message>
    <message>
        <source>The stored data cannot be used</source>
        <translation>저장된 데이터를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>데이터를 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>The panel&apos;s own nodes cannot be built</source>
        <translation>패널 자체 노드를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>The plug-in cannot be used</source>
        <translation>플러그인을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>The plug-in is left out</source>
        <translation>플러그인을 제외했습니다</translation>
    </message>
    <message>
        <source>a module &quot;%1&quot; is there already</source>
        <translation>모듈 &quot;%1&quot;이(가) 이미 있습니다</translation>
    </message>
    <message>
        <source>its factory made no module &quot;%1&quot;</source>
        <translation>팩토리가 모듈 &quot;%1&quot;을(를) 만들지 않았습니다</translation>
    </message>
</context>
<context>
    <name>host::LibraryFile</name>
    <message>
        <source>it is no library</source>
        <translation>라이브러리가 아닙니다</translation>
    </message>
    <message>
        <source>the file is incomplete: it has %1 bytes, %2 are needed</source>
        <translation>파일이 불완전합니다: %1바이트이며 %2바이트가 필요합니다</translation>
    </message>
</context>
<context>
    <name>host::Link</name>
    <message>
        <source>a message of %1 bytes is longer than the %2 that are read</source>
        <translation>%1바이트 메시지가 읽을 수 있는 %2바이트보다 깁니다</translation>
    </message>
    <message>
        <source>no message is of the kind %1</source>
        <translation>%1 종류의 메시지는 없습니다</translation>
    </message>
    <message>
        <source>the message is of version %1 of the link, only version %2 is read</source>
        <translation>메시지의 연결 버전이 %1이지만 버전 %2만 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>the message has %1 bytes where its head names %2</source>
        <translation>메시지는 %1바이트이지만 헤더에는 %2(으)로 되어 있습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the wrong kind</source>
        <translation>&quot;%1&quot;의 종류가 잘못되었습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>&quot;%1&quot;이(가) 범위를 벗어났습니다</translation>
    </message>
    <message>
        <source>the message is no map of keys</source>
        <translation>메시지가 키 맵이 아닙니다</translation>
    </message>
    <message>
        <source>these bytes are no message of the link</source>
        <translation>이 바이트는 연결 메시지가 아닙니다</translation>
    </message>
    <message>
        <source>the message is cut off in its head</source>
        <translation>메시지가 헤더에서 잘렸습니다</translation>
    </message>
    <message>
        <source>the message was damaged on its way</source>
        <translation>메시지가 전송 중에 손상되었습니다</translation>
    </message>
</context>
<context>
    <name>host::LogKeeper</name>
    <message>
        <source>A log record cannot be kept: %1</source>
        <translation>로그 기록을 보관할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>제목이 없습니다</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1; %2(으)로 보관했습니다</translation>
    </message>
    <message>
        <source>The log cannot be kept over a restart: %1</source>
        <translation>로그를 재시작 후까지 보관할 수 없음: %1</translation>
    </message>
</context>
<context>
    <name>host::PluginLoader</name>
    <message>
        <source>it has no entry &quot;%1&quot;, so it is no plug-in of this panel</source>
        <translation>진입점 &quot;%1&quot;이(가) 없으므로 이 패널의 플러그인이 아닙니다</translation>
    </message>
    <message>
        <source>its entry &quot;%1&quot; tells nothing</source>
        <translation>진입점 &quot;%1&quot;이(가) 아무것도 알려 주지 않습니다</translation>
    </message>
    <message>
        <source>it was built for interface %1 of the framework, this panel has interface %2</source>
        <translation>프레임워크 인터페이스 %1용으로 빌드되었지만 이 패널은 인터페이스 %2입니다</translation>
    </message>
    <message>
        <source>it tells no name</source>
        <translation>이름을 알려 주지 않습니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>그런 파일이 없습니다</translation>
    </message>
    <message>
        <source>it has registered no module under the name &quot;%1&quot;</source>
        <translation>이름 &quot;%1&quot;(으)로 등록한 모듈이 없습니다</translation>
    </message>
    <message>
        <source>it has registered no version under the name &quot;%1&quot;</source>
        <translation>이름 &quot;%1&quot;(으)로 등록한 버전이 없습니다</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>플러그인을 불러올 수 없습니다</translation>
    </message>
</context>
<context>
    <name>host::Store</name>
    <message>
        <source>a store is open already in this program</source>
        <translation>이 프로그램에서 저장소가 이미 열려 있습니다</translation>
    </message>
    <message>
        <source>files cannot be made there</source>
        <translation>그곳에 파일을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is in use by %2 (process %3 on %4). End that program or choose another data folder.</source>
        <translation>데이터 폴더 &quot;%1&quot;을(를) %2이(가) 사용 중입니다(%4의 프로세스 %3). 해당 프로그램을 종료하거나 다른 데이터 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>다른 프로그램</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>another program has written it in the meantime</source>
        <translation>그사이 다른 프로그램이 기록했습니다</translation>
    </message>
    <message>
        <source>What the panel holds is stored anew.</source>
        <translation>패널의 내용을 새로 저장합니다.</translation>
    </message>
    <message>
        <source>The panel starts from its templates.</source>
        <translation>패널이 템플릿에서 시작합니다.</translation>
    </message>
    <message>
        <source>%1 entries in it were whole and were taken over.</source>
        <translation>온전한 항목 %1개를 가져왔습니다.</translation>
    </message>
    <message>
        <source>%1 of its %2 entries were whole and were taken over.</source>
        <translation>항목 %2개 중 온전한 %1개를 가져왔습니다.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; cannot be read: %2. The panel starts from its templates; the stored data will be kept aside.</source>
        <translation>&quot;%1&quot;에 저장된 데이터를 읽을 수 없습니다: %2. 패널은 템플릿에서 시작하며 저장된 데이터는 따로 보관합니다.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2. %3 entries were whole and were taken over.</source>
        <translation>&quot;%1&quot;에 저장된 데이터가 손상되었습니다: %2. 온전한 항목 %3개를 가져왔습니다.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; could not be used: %2.</source>
        <translation>&quot;%1&quot;에 저장된 데이터를 사용할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The file was kept as &quot;%1&quot;.</source>
        <translation>파일을 &quot;%1&quot;(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>All other entries were taken over.</source>
        <translation>나머지 항목은 모두 가져왔습니다.</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2.</source>
        <translation>&quot;%1&quot;에 저장된 데이터가 손상되었습니다: %2.</translation>
    </message>
    <message>
        <source>entry %1 has no valid text</source>
        <translation>항목 %1의 텍스트가 유효하지 않습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be stored: %2.</source>
        <translation>&quot;%1&quot;을(를) 저장할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; cannot be written: %2. Changes are kept in memory, and saving is tried again every %3 seconds and at the end. Make the folder writable or free space on its disk; what is not saved is lost with the end of the program.</source>
        <translation>데이터 폴더 &quot;%1&quot;에 쓸 수 없습니다: %2. 변경 내용은 메모리에 있으며 %3초마다, 그리고 종료할 때 저장을 다시 시도합니다. 폴더를 쓰기 가능하게 하거나 디스크 공간을 확보하십시오. 저장되지 않은 내용은 프로그램이 끝나면 사라집니다.</translation>
    </message>
    <message>
        <source>the SQLite driver of Qt is not installed</source>
        <translation>Qt의 SQLite 드라이버가 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>it is no store of this panel</source>
        <translation>이 패널의 저장소가 아닙니다</translation>
    </message>
    <message>
        <source>it was written by a newer version of this panel (form %1)</source>
        <translation>더 새로운 버전의 패널이 기록했습니다(형식 %1)</translation>
    </message>
    <message>
        <source>its form %1 is unknown</source>
        <translation>형식 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>the checksum of entry %1 is wrong</source>
        <translation>항목 %1의 체크섬이 잘못되었습니다</translation>
    </message>
    <message>
        <source>its manifest is missing</source>
        <translation>매니페스트가 없습니다</translation>
    </message>
    <message>
        <source>the checksum of its manifest is wrong</source>
        <translation>매니페스트의 체크섬이 잘못되었습니다</translation>
    </message>
    <message>
        <source>it holds %1 entries instead of %2, or others</source>
        <translation>항목이 %2개가 아니라 %1개이거나 다른 항목입니다</translation>
    </message>
    <message>
        <source>the file cannot be renamed</source>
        <translation>파일 이름을 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>it cannot be renamed</source>
        <translation>이름을 바꿀 수 없습니다</translation>
    </message>
</context>
<context>
    <name>host::TreeBinder</name>
    <message>
        <source>The template cannot be used: %1</source>
        <translation>템플릿을 사용할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The template %1 holds no map of keys</source>
        <translation>템플릿 %1에 키 맵이 없습니다</translation>
    </message>
    <message>
        <source>Stored values do not fit the template and were left out: %1</source>
        <translation>저장된 값이 템플릿과 맞지 않아 제외했습니다: %1</translation>
    </message>
</context>
<context>
    <name>ix::ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>필드 비우기</translation>
    </message>
</context>
<context>
    <name>ix::calc</name>
    <message>
        <source>%1 are only %2 mm apart; at least %3 mm are needed.</source>
        <translation>%1의 간격이 %2 mm뿐입니다. 최소 %3 mm가 필요합니다.</translation>
    </message>
    <message>
        <source>A calibration point holds no number.</source>
        <translation>보정 포인트에 숫자가 없습니다.</translation>
    </message>
    <message>
        <source>The origin and the point on X</source>
        <translation>원점과 X축 위의 점</translation>
    </message>
    <message>
        <source>The origin and the point on the XY plane</source>
        <translation>원점과 XY 평면 위의 점</translation>
    </message>
    <message>
        <source>The directions to the two points differ by only %1 degrees; at least %2 are needed.</source>
        <translation>두 점 방향의 차이가 %1도뿐입니다. 최소 %2도가 필요합니다.</translation>
    </message>
</context>
<context>
    <name>nexo::ManagerHelper</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>번역 %1을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>nexo::SettingManager</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 (%2바이트 위치)</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>JSON 객체가 없습니다</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is no text</source>
        <translation>&quot;%1&quot;의 값이 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1바이트보다 큽니다</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. Settings are not saved.</source>
        <translation>설정 파일 %1을(를) 사용할 수 없습니다: %2. 설정이 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. It is kept as %3.</source>
        <translation>설정 파일 %1을(를) 사용할 수 없습니다: %2. %3(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>Cannot save the settings file %1: %2</source>
        <translation>설정 파일 %1을(를) 저장할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>orba::ModuleManager</name>
    <message>
        <source>%1 (at &quot;%2&quot;)</source>
        <translation>%1 (&quot;%2&quot;에서)</translation>
    </message>
    <message>
        <source>lists and maps are nested more than %1 deep</source>
        <translation>목록과 맵이 %1단계보다 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file has %1 bytes, more than the %2 that are read</source>
        <translation>파일이 %1바이트로, 읽을 수 있는 %2바이트를 넘습니다</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>is written, but may be lost when the power fails: %1</source>
        <translation>기록되었지만 정전 시 손실될 수 있습니다: %1</translation>
    </message>
    <message>
        <source>a whole number is outside of 64 bits</source>
        <translation>정수가 64비트를 벗어났습니다</translation>
    </message>
    <message>
        <source>an item is {&quot;name&quot;: text, &quot;value&quot;: ...}, without &quot;name&quot; when it has none</source>
        <translation>항목은 {&quot;name&quot;: 텍스트, &quot;value&quot;: ...} 형식이며 이름이 없으면 &quot;name&quot;을 생략합니다</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; stands alone with one text</source>
        <translation>&quot;#utf16&quot;은 텍스트 하나와 단독으로 써야 합니다</translation>
    </message>
    <message>
        <source>a mixed container is {&quot;#mixed&quot;: &quot;list&quot; or &quot;map&quot;, &quot;#items&quot;: [...]}</source>
        <translation>혼합 컨테이너는 {&quot;#mixed&quot;: &quot;list&quot; 또는 &quot;map&quot;, &quot;#items&quot;: [...]} 형식입니다</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>숫자가 너무 큽니다</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; holds no base64 text of UTF-16</source>
        <translation>&quot;#utf16&quot;에 UTF-16의 base64 텍스트가 없습니다</translation>
    </message>
    <message>
        <source>keys that begin with one &quot;#&quot; are reserved, write &quot;##&quot;</source>
        <translation>&quot;#&quot; 하나로 시작하는 키는 예약되어 있습니다. &quot;##&quot;로 쓰십시오</translation>
    </message>
    <message>
        <source>a name is a text or {&quot;#utf16&quot;: ...}</source>
        <translation>이름은 텍스트 또는 {&quot;#utf16&quot;: ...}입니다</translation>
    </message>
    <message>
        <source>a zero byte stands outside of a text</source>
        <translation>텍스트 밖에 0 바이트가 있습니다</translation>
    </message>
    <message>
        <source>the text has %1 bytes, more than the %2 that are read</source>
        <translation>텍스트가 %1바이트로, 읽을 수 있는 %2바이트를 넘습니다</translation>
    </message>
    <message>
        <source>a number is not finite</source>
        <translation>숫자가 유한하지 않습니다</translation>
    </message>
    <message>
        <source>the tree is too large to be written</source>
        <translation>트리가 너무 커서 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>그런 노드가 없습니다</translation>
    </message>
    <message>
        <source>document types and entities are not accepted</source>
        <translation>문서 형식과 엔터티는 허용되지 않습니다</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot; is unknown</source>
        <translation>엔터티 &quot;%1&quot;을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>unknown element &quot;%1&quot;</source>
        <translation>알 수 없는 요소 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>text stands between elements</source>
        <translation>요소 사이에 텍스트가 있습니다</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>문서가 비어 있습니다</translation>
    </message>
    <message>
        <source>unknown attribute %1=&quot;%2&quot;</source>
        <translation>알 수 없는 속성 %1=&quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown type &quot;%1&quot;</source>
        <translation>알 수 없는 형식 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the element has no type</source>
        <translation>요소에 형식이 없습니다</translation>
    </message>
    <message>
        <source>only a string has an encoding</source>
        <translation>인코딩은 문자열에만 있습니다</translation>
    </message>
    <message>
        <source>there is no name to be decoded</source>
        <translation>해독할 이름이 없습니다</translation>
    </message>
    <message>
        <source>the name is no base64 text of UTF-16</source>
        <translation>이름이 UTF-16의 base64 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>the string is no base64 text of UTF-16</source>
        <translation>문자열이 UTF-16의 base64 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>a null holds no value</source>
        <translation>null에는 값이 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>&quot;%1&quot;은(는) true도 false도 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number of 64 bits</source>
        <translation>&quot;%1&quot;은(는) 64비트 정수가 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>&quot;%1&quot;은(는) 유한한 숫자가 아닙니다</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>텍스트가 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>중지되었습니다</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not accepted</source>
        <translation>인코딩 &quot;%1&quot;은(는) 받아들이지 않습니다</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>요소의 속성이 %1개를 넘습니다</translation>
    </message>
</context>
<context>
    <name>panel::CellPage</name>
    <message>
        <source>No project is in use.</source>
        <translation>사용 중인 프로젝트가 없습니다.</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>프로젝트 %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>컨트롤러 없음</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>고장</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>정지됨</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>no pallet</source>
        <translation>팔레트 없음</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>%1 of %2 boxes</source>
        <translation>%2개 중 %1개</translation>
    </message>
    <message>
        <source>No vacuum</source>
        <translation>진공 없음</translation>
    </message>
    <message>
        <source>Lost box</source>
        <translation>박스 놓침</translation>
    </message>
    <message>
        <source>Conveyor jam</source>
        <translation>컨베이어 막힘</translation>
    </message>
    <message>
        <source>Pallet pulled</source>
        <translation>팔레트 빠짐</translation>
    </message>
    <message>
        <source>Emergency stop</source>
        <translation>비상 정지</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>충돌</translation>
    </message>
    <message>
        <source>Power cut</source>
        <translation>정전</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>신호</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>의미</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>줄</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>프로시저</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Layer / piece</source>
        <translation>단 / 개</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1: 켬</translation>
    </message>
    <message>
        <source>Violations: %1, lost boxes: %2</source>
        <translation>위반: %1, 놓친 박스: %2</translation>
    </message>
    <message>
        <source>%1: waiting for the controller</source>
        <translation>%1: 컨트롤러 대기 중</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>product at the stop</source>
        <translation>제품이 스토퍼에 있음</translation>
    </message>
    <message>
        <source>product in %1 mm</source>
        <translation>제품까지 %1 mm</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>막힘</translation>
    </message>
    <message>
        <source>vacuum</source>
        <translation>진공</translation>
    </message>
    <message>
        <source>no vacuum</source>
        <translation>진공 없음</translation>
    </message>
    <message>
        <source>carries a product</source>
        <translation>제품을 들고 있음</translation>
    </message>
    <message>
        <source>Conveyor: %1</source>
        <translation>컨베이어: %1</translation>
    </message>
    <message>
        <source>Gripper: %1</source>
        <translation>그리퍼: %1</translation>
    </message>
    <message>
        <source>Lift column: %1 mm, %2</source>
        <translation>승강 칼럼: %1 mm, %2</translation>
    </message>
    <message>
        <source>Task, line</source>
        <translation>작업, 줄</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>물체</translation>
    </message>
    <message>
        <source>switch on disabled</source>
        <translation>스위치 온 금지</translation>
    </message>
    <message>
        <source>ready to switch on</source>
        <translation>스위치 온 준비</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>스위치 온</translation>
    </message>
    <message>
        <source>operation enabled</source>
        <translation>운전 허용</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>고장</translation>
    </message>
</context>
<context>
    <name>panel::CellTable</name>
    <message>
        <source>runs</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>moves</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켬</translation>
    </message>
</context>
<context>
    <name>panel::ControllerPage</name>
    <message>
        <source>Moving</source>
        <translation>이동 중</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>정지</translation>
    </message>
</context>
<context>
    <name>panel::ExportDialog</name>
    <message>
        <source>Table (CSV)</source>
        <translation>표 (CSV)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>파일 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot; and does not begin with &quot;.&quot;.</source>
        <translation>이름에 &quot;/&quot;를 쓸 수 없고 &quot;.&quot;로 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>파일을 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1이(가) 이미 있습니다.</translation>
    </message>
</context>
<context>
    <name>panel::LogModel</name>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>로봇</translation>
    </message>
</context>
<context>
    <name>panel::LogPage</name>
    <message>
        <source>All levels</source>
        <translation>모든 수준</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>오류와 경고</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>기록: %1</translation>
    </message>
    <message>
        <source>Records: %1 of %2</source>
        <translation>기록: %1/%2</translation>
    </message>
    <message>
        <source>%1 records were exported to %2.</source>
        <translation>기록 %1개를 %2(으)로 내보냈습니다.</translation>
    </message>
    <message>
        <source>The log was not exported. %1</source>
        <translation>로그를 내보내지 못했습니다. %1</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>로그 지우기</translation>
    </message>
    <message>
        <source>All %1 records are deleted for good, those that the filter hides as well. Export them first to keep them.</source>
        <translation>필터로 숨긴 것을 포함하여 기록 %1개가 모두 영구히 삭제됩니다. 보관하려면 먼저 내보내십시오.</translation>
    </message>
</context>
<context>
    <name>panel::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>panel::Navigator</name>
    <message>
        <source>Packages</source>
        <translation>패키지</translation>
    </message>
    <message>
        <source>Navigator</source>
        <translation>탐색기</translation>
    </message>
</context>
<context>
    <name>panel::Options</name>
    <message>
        <source>Folder of the stored data, settings and logs.</source>
        <translation>저장 데이터, 설정, 로그의 폴더.</translation>
    </message>
    <message>
        <source>Controller workspace.</source>
        <translation>컨트롤러 작업 공간.</translation>
    </message>
    <message>
        <source>en, cn, ru, jp or kr.</source>
        <translation>en, cn, ru, jp 또는 kr.</translation>
    </message>
    <message>
        <source>Plug-in library to load; may be given several times.</source>
        <translation>불러올 플러그인 라이브러리. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Recipes (file or folder) for an empty store; may be given several times.</source>
        <translation>빈 저장소에 넣을 레시피(파일 또는 폴더). 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Desktop panel of the palletizing workstation.</source>
        <translation>팔레타이징 워크스테이션의 데스크톱 패널.</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>알 수 없는 인수 &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown language &quot;%1&quot;; there are %2.</source>
        <translation>알 수 없는 언어 &quot;%1&quot;. 사용할 수 있는 언어: %2.</translation>
    </message>
    <message>
        <source>Robot controller: inprocess (simulated, the default), spawn (simulated, in a process of its own), HOST:PORT or none.</source>
        <translation>로봇 컨트롤러: inprocess(시뮬레이션, 기본값), spawn(별도 프로세스의 시뮬레이션), HOST:PORT 또는 none.</translation>
    </message>
    <message>
        <source>Unknown controller &quot;%1&quot;; there are inprocess, spawn, none and HOST:PORT.</source>
        <translation>알 수 없는 컨트롤러 &quot;%1&quot;. 사용 가능: inprocess, spawn, none, HOST:PORT.</translation>
    </message>
    <message>
        <source>Fields that are touched open a keypad or keyboard.</source>
        <translation>필드를 누르면 숫자 키패드나 키보드가 열립니다.</translation>
    </message>
</context>
<context>
    <name>panel::PanelWindow</name>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Robot panel</source>
        <translation>로봇 패널</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>페이지 &quot;%1&quot;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>데이터를 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>Changes since the last saving are lost when the panel closes now.</source>
        <translation>지금 패널을 닫으면 마지막 저장 이후의 변경 내용이 사라집니다.</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>열어 두기</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>컨트롤러</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>셀</translation>
    </message>
</context>
<context>
    <name>panel::ProblemPage</name>
    <message>
        <source>The panel did not start completely</source>
        <translation>패널이 완전히 시작되지 않았습니다</translation>
    </message>
</context>
<context>
    <name>panel::StatusStrip</name>
    <message>
        <source>Controller</source>
        <translation>컨트롤러</translation>
    </message>
    <message>
        <source>Last notice</source>
        <translation>최근 알림</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Controller %1</source>
        <translation>컨트롤러 %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>컨트롤러 없음</translation>
    </message>
    <message>
        <source>Check controller</source>
        <translation>컨트롤러 확인</translation>
    </message>
    <message>
        <source>Controller refuses</source>
        <translation>컨트롤러 거부</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>이 패널은 컨트롤러에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Editing goes on; the recipes stay in the panel.</source>
        <translation>편집은 계속할 수 있습니다. 레시피는 패널에 남습니다.</translation>
    </message>
</context>
</TS>
