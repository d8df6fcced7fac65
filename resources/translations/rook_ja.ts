<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Rook</name>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: there is no session bus to reach Rook through</source>
        <translation>rook: Rook に接続するためのセッションバスがありません</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook waits for the script that calls it. %@</source>
        <translation>Rook は、呼び出し元のスクリプトが終わるのを待っています。%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the command could not run</source>
        <translation>コマンドを実行できませんでした</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the output could not be written</source>
        <translation>出力を書き込めませんでした</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has not ended yet</source>
        <translation>Rook はまだ終了していません</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook could not be started. %@</source>
        <translation>Rook を起動できませんでした。%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is busy and answers later. %@</source>
        <translation>rook: Rook は処理中のため、後で応答します。%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has ended without an answer; start it with “rook” to see why</source>
        <translation>Rook は応答せずに終了しました。「rook」で起動すると理由がわかります</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is not running; start it with “rook”</source>
        <translation>rook: Rook は動作していません。「rook」で起動してください</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>usage error</source>
        <translation>使い方の誤り</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>no resident process</source>
        <translation>常駐プロセスなし</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Replace what is stored already</source>
        <translation>すでに保存されている内容を置き換える</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember every window</source>
        <translation>すべてのウィンドウを保存する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Ask on the screen whether to replace what is stored</source>
        <translation>保存内容を置き換えるかどうかを画面で確認する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print JSON instead of a table</source>
        <translation>表の代わりに JSON を出力する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put every window back</source>
        <translation>すべてのウィンドウを元に戻す</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put back the windows of one application</source>
        <translation>1 つのアプリケーションのウィンドウを元に戻す</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>The application's identifier; the active application without it</source>
        <translation>アプリケーションの識別子 (省略時はアクティブなアプリケーション)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the windows of the active application</source>
        <translation>アクティブなアプリケーションのウィンドウを保存する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the active window</source>
        <translation>アクティブなウィンドウを保存する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Link the active window to a stored window</source>
        <translation>アクティブなウィンドウを保存済みウィンドウにリンクする</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Open the status menu at the pointer</source>
        <translation>ポインターの位置にステータスメニューを開く</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the list of stored windows</source>
        <translation>保存済みウィンドウの一覧を表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the preferences</source>
        <translation>設定を表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show version and credits</source>
        <translation>バージョンとクレジットを表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Look for a newer version</source>
        <translation>新しいバージョンを確認する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>End the resident process</source>
        <translation>常駐プロセスを終了する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show displays, counts, back end, permission</source>
        <translation>ディスプレイ、件数、バックエンド、権限を表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what is stored</source>
        <translation>保存されている内容を表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the live windows as Rook sees them</source>
        <translation>開いているウィンドウを Rook から見た状態で表示する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what a restore would do, and why; changes nothing</source>
        <translation>復元で何がなぜ行われるかを表示する (何も変更しない)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>One application's identifier</source>
        <translation>アプリケーションの識別子</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Exit codes: %@.</source>
        <translation>終了コード: %@。</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Without a command Rook starts its resident process in the foreground. Where Rook is installed, a
command that does something starts it, too; list, plan, quit, status and windows never do.</source>
        <translation>コマンドを指定しない場合、Rook は常駐プロセスをフォアグラウンドで起動します。Rook がインストールされていれば、
操作を行うコマンドでも起動します。list、plan、quit、status、windows では起動しません。</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not expected: %@</source>
        <translation>予期しない引数: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not both: %@</source>
        <translation>同時に指定できません: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>rook: %@
Run “rook --help” for more information.</source>
        <translation>rook: %@
詳しくは「rook --help」を実行してください。</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Usage</source>
        <translation>使い方</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>OPTIONS</source>
        <translation>オプション</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Arguments</source>
        <translation>引数</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>TEXT</source>
        <translation>文字列</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Excludes</source>
        <translation>併用不可</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print this help message and exit</source>
        <translation>このヘルプを表示して終了する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Rook remembers where your windows stand, per set of displays, and puts them back.</source>
        <translation>Rook はディスプレイ構成ごとにウィンドウの位置を覚え、元に戻します。</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Display program version information and exit</source>
        <translation>バージョン情報を表示して終了する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Start without tray or windows</source>
        <translation>アイコンもウィンドウも表示せずに起動する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Log debug messages too</source>
        <translation>デバッグメッセージも記録する</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Subcommands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@×%@ at %@,%@</source>
        <translation>%@×%@ (%@,%@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@</source>
        <translation>デスクトップ %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@ “%@”</source>
        <translation>デスクトップ %@「%@」</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ (not to be had: %@)</source>
        <translation>%@ (利用不可: %@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>DISPLAY</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>BOUNDS</source>
        <translation>範囲</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PRODUCT</source>
        <translation>製品</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>MAIN</source>
        <translation>メイン</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Store</source>
        <translation>保存ファイル</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Back end</source>
        <translation>バックエンド</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@, window manager %@</source>
        <translation>%@、ウィンドウマネージャー %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source> (no)</source>
        <translation> (なし)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Capabilities</source>
        <translation>機能</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Permission</source>
        <translation>権限</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Missing</source>
        <translation>不足</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Current workspace</source>
        <translation>現在のレイアウト</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Stored</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>workspaces: %@, applications: %@, windows: %@</source>
        <translation>レイアウト %@、アプリケーション %@、ウィンドウ %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Hot key</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Doing</source>
        <translation>実行中</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Before</source>
        <translation>以前</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WORKSPACE</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>APPLICATION</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WINDOW</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FRAME</source>
        <translation>枠</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STATE</source>
        <translation>状態</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PATTERN</source>
        <translation>パターン</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TITLE</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SUBROLE</source>
        <translation>サブロール</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>CHILD ROLES</source>
        <translation>子ロール</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FLAGS</source>
        <translation>フラグ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STORED WINDOW</source>
        <translation>保存済みウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SCORE</source>
        <translation>スコア</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WHY</source>
        <translation>理由</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FROM</source>
        <translation>元</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TO</source>
        <translation>先</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: stays</source>
        <translation>なし: そのまま</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: not open</source>
        <translation>なし: 開いていません</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ %@ to %@</source>
        <translation>%@ %@ ～ %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ since %@</source>
        <translation>%@ %@ から</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMApplicationDelegate.cpp"/>
        <source>The session bus is gone.</source>
        <translation>セッションバスがなくなりました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>The windows are remembered, but not on disk yet: %@</source>
        <translation>ウィンドウは記憶されましたが、まだディスクに保存されていません: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is asking something: answer that first.</source>
        <translation>Rook が確認を求めています。先に答えてください。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is busy: %@</source>
        <translation>Rook は処理中です: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Nothing is stored for the displays attached now.</source>
        <translation>現在接続されているディスプレイでは何も保存されていません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No application is active.</source>
        <translation>アクティブなアプリケーションがありません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No window has the focus.</source>
        <translation>フォーカスのあるウィンドウがありません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>This Rook was started without windows.</source>
        <translation>この Rook はウィンドウなしで起動されました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No windows are stored for “%@” with the displays attached now.</source>
        <translation>現在接続されているディスプレイでは、「%@」のウィンドウは保存されていません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>%@ Ask to overwrite in order to replace them.</source>
        <translation>%@置き換えるには上書きを指定してください。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>You chose not to replace what is stored.</source>
        <translation>保存済みの内容を置き換えないことが選択されました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMHotKeyCenter.cpp"/>
        <source>The setting is no shortcut.</source>
        <translation>設定値がショートカットではありません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Rook to your applications?</source>
        <translation>Rook をアプリケーションに追加しますか?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Rook runs from “%@”, where your desktop does not look for programs. A launcher lets you start it like any other.</source>
        <translation>Rook は「%@」から実行されていますが、デスクトップはそこにあるプログラムを検索しません。ランチャーを追加すると、ほかのアプリケーションと同じように起動できます。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Launcher</source>
        <translation>ランチャーを追加</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Not Now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLoginItemsController.cpp"/>
        <source>There is no home directory.</source>
        <translation>ホームディレクトリがありません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>The displays have changed.</source>
        <translation>ディスプレイが変わりました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>Not all windows could be read, so what was stored is kept: %@</source>
        <translation>読み取れないウィンドウがあったため、保存済みの内容を保持します: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <source>Restoring Windows…</source>
        <translation>ウィンドウを復元しています…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <location filename="../../src/Controller/LMRestoreEvents.cpp"/>
        <source>Restoring Windows for %@…</source>
        <translation>%@ のウィンドウを復元しています…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore Windows for %@</source>
        <translation>%@ のウィンドウを復元</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows for %@</source>
        <translation>%@ のすべてのウィンドウを保存</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Finder</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store Active Window</source>
        <translation>アクティブなウィンドウを保存</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Link Active Window…</source>
        <translation>アクティブなウィンドウをリンク…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows</source>
        <translation>すべてのウィンドウを保存</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore All Windows</source>
        <translation>すべてのウィンドウを復元</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Stored Windows…</source>
        <translation>保存済みウィンドウ…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Check for Updates…</source>
        <translation>更新を確認…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>About Rook</source>
        <translation>Rook について</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Quit Rook</source>
        <translation>Rook を終了</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>%@ (Incompatible)</source>
        <translation>%@ (非対応)</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Store Windows Succeeded</source>
        <translation>ウィンドウを保存しました</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for %@…</source>
        <translation>%@ のウィンドウを保存しています…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist for “%@”. Do you want to replace them?</source>
        <translation>「%@」のウィンドウはすでに保存されています。置き換えますか?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows previously stored for “%@” will be replaced with its current windows.</source>
        <translation>以前保存した「%@」のウィンドウは、現在のウィンドウに置き換えられます。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for %@.</source>
        <translation>Rook は %@ のウィンドウを保存しました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing the Active Window…</source>
        <translation>アクティブなウィンドウを保存しています…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>An identical stored window already exists. Do you want to replace it?</source>
        <translation>同じウィンドウがすでに保存されています。置き換えますか?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The stored window labelled “%@” will be replaced with the active window.</source>
        <translation>保存済みウィンドウ「%@」は、アクティブなウィンドウに置き換えられます。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored the active window.</source>
        <translation>Rook はアクティブなウィンドウを保存しました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows of “%@” cannot be stored.</source>
        <translation>「%@」のウィンドウは保存できません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for All Applications…</source>
        <translation>すべてのアプリケーションのウィンドウを保存しています…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist. Do you want to replace them?</source>
        <translation>ウィンドウはすでに保存されています。置き換えますか?</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Previously stored windows will be replaced with the windows of the current running applications.</source>
        <translation>以前保存したウィンドウは、現在実行中のアプリケーションのウィンドウに置き換えられます。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for all applications.</source>
        <translation>Rook はすべてのアプリケーションのウィンドウを保存しました。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>There is nobody to ask.</source>
        <translation>問い合わせ先がありません。</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Updates could not be looked for</source>
        <translation>更新を確認できませんでした</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook is up to date</source>
        <translation>Rook は最新です</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook %@ is available</source>
        <translation>Rook %@ を利用できます</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Your system’s software updates install it.</source>
        <translation>システムのソフトウェア更新でインストールできます。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMActionRunning.cpp"/>
        <source>Running the action “%@” of “%@”…</source>
        <translation>「%2$@」のアクション「%1$@」を実行しています…</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title</source>
        <translation>タイトルなし</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <source>Unlabeled Window</source>
        <translation>ラベルのないウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There may be a problem with your Stored Windows.sqlite file. Please remove the current file and re-launch Rook.</source>
        <translation>ファイル「Stored Windows.sqlite」に問題がある可能性があります。現在のファイルを取り除いてから Rook を再起動してください。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook is unable to create some folders required for it to run.</source>
        <translation>Rook の動作に必要なフォルダーを作成できません。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook seems to be missing some required components and may need to be re-installed.</source>
        <translation>Rook に必要なコンポーネントが不足しているようです。再インストールが必要な可能性があります。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Unable to load stored windows.</source>
        <translation>保存済みウィンドウを読み込めません。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Stored Windows Version Mismatch.</source>
        <translation>保存済みウィンドウのバージョンが一致しません。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Your Stored Windows were created with a newer version of Rook.

Please visit the Rook web site and download the latest version of Rook.</source>
        <translation>保存済みウィンドウは、より新しいバージョンの Rook で作成されています。

Rook の Web サイトから最新バージョンをダウンロードしてください。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>The object model is missing or contradicts itself.</source>
        <translation>オブジェクトモデルがないか、矛盾しています。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There is no application support directory.</source>
        <translation>アプリケーションデータ用のフォルダーがありません。</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>%lu Display%@</source>
        <translation>ディスプレイ %lu 台</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMObjectContextSaving.cpp"/>
        <source>There is no store to save to.</source>
        <translation>保存先のファイルがありません。</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMPersistentStore.cpp"/>
        <source>%@: the file was moved or replaced while Rook was using it</source>
        <translation>%@: Rook の使用中にファイルが移動または置き換えられました</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a store file</source>
        <translation>保存ファイルではありません</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>a database of another program</source>
        <translation>別のプログラムのデータベースです</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>written by a newer version of Rook (store version %@, known are versions up to %@)</source>
        <translation>新しいバージョンの Rook で書き込まれています (ファイルのバージョン %@、対応はバージョン %@ まで)</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is cut short</source>
        <translation>ファイルが途中で切れています</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>no such folder</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the folder is not writable</source>
        <translation>フォルダーに書き込めません</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is not writable</source>
        <translation>ファイルに書き込めません</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>%@: in use by another process</source>
        <translation>%@: 別のプロセスが使用中です</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Another program is using %@.</source>
        <translation>ほかのプログラムが %@ を使用しています。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>%@ is in use for another hot key.</source>
        <translation>%@ は別のホットキーで使用されています。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>This keyboard has no %@.</source>
        <translation>このキーボードに %@ はありません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Hot keys are not available in this session.</source>
        <translation>このセッションではホットキーを使用できません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>No-Break Space</source>
        <translation>ノーブレークスペース</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Clear</source>
        <comment>key</comment>
        <translation>Clear</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>System Request</source>
        <translation>SysRq</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Kana</source>
        <translation>かな</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Eisu</source>
        <translation>英数</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Left</source>
        <translation>←</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Right</source>
        <translation>→</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Down</source>
        <translation>↓</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Print</source>
        <translation>Print Screen</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Delete</source>
        <comment>key</comment>
        <translation>Delete</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Enter</source>
        <translation>テンキー Enter</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Home</source>
        <translation>テンキー Home</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Left</source>
        <translation>テンキー ←</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Up</source>
        <translation>テンキー ↑</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Right</source>
        <translation>テンキー →</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Down</source>
        <translation>テンキー ↓</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Up</source>
        <translation>テンキー Page Up</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Down</source>
        <translation>テンキー Page Down</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad End</source>
        <translation>テンキー End</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Begin</source>
        <translation>テンキー Begin</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Insert</source>
        <translation>テンキー Insert</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Delete</source>
        <translation>テンキー Delete</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Up</source>
        <translation>明るさ＋</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Down</source>
        <translation>明るさ－</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Down</source>
        <translation>音量－</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mute</source>
        <translation>消音</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Up</source>
        <translation>音量＋</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Previous Track</source>
        <translation>前の曲</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Next Track</source>
        <translation>次の曲</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home Page</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Calculator</source>
        <translation>電卓</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Power Off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Sleep</source>
        <translation>スリープ</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause Playing</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 1</source>
        <translation>起動 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 2</source>
        <translation>起動 2</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 3</source>
        <translation>起動 3</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 4</source>
        <translation>起動 4</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Microphone Mute</source>
        <translation>マイク消音</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad %@</source>
        <translation>テンキー %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Key %@</source>
        <translation>キー %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <location filename="../../src/Platform/PackageKit/LMPackageKitUpdater.cpp"/>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit が応答しません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The X server does not answer.</source>
        <translation>X サーバーが応答しません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The X server refused to intern atoms.</source>
        <translation>X サーバーがアトムの登録を拒否しました。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The connection to the X server is lost.</source>
        <translation>X サーバーとの接続が失われました。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>Wayland sessions are not supported yet: most windows are out of reach there. Log in to an X11 session.</source>
        <translation>Wayland セッションにはまだ対応していません。ほとんどのウィンドウを操作できないためです。X11 セッションにログインしてください。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>There is no X server to connect to: DISPLAY is not set.</source>
        <translation>接続先の X サーバーがありません。DISPLAY が設定されていません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>No window manager is running.</source>
        <translation>ウィンドウマネージャーが動作していません。</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The window manager does not support %@.</source>
        <translation>ウィンドウマネージャーは %@ に対応していません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Label</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>On Display Change</source>
        <translation>ディスプレイ変更時</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Unlabeled Action</source>
        <translation>ラベルのないアクション</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs only when the displays have changed</source>
        <translation>ディスプレイが変わったときだけ実行します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs whenever the windows are restored</source>
        <translation>ウィンドウを復元するたびに実行します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMApplicationsModel.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Not a valid pattern</source>
        <translation>無効なパターン</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Valid pattern</source>
        <translation>有効なパターン</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScreenshotView.cpp"/>
        <source>Picture of the stored window</source>
        <translation>保存済みウィンドウの画像</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shell script</source>
        <translation>シェルスクリプト</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shift+Tab and Ctrl+Tab leave the text</source>
        <translation>Shift+Tab と Ctrl+Tab でテキストから移動します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This system cannot run AppleScripts. The text is kept.</source>
        <translation>このシステムでは AppleScript を実行できません。テキストは保持されます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Comp&amp;ile</source>
        <translation>コンパイル(&amp;I)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This is the beginning of a script that is too long to be edited here. It runs as a whole.</source>
        <translation>これは長すぎてここでは編集できないスクリプトの先頭部分です。実行時には全体が実行されます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script compiles.</source>
        <translation>スクリプトはコンパイルできます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script does not compile.</source>
        <translation>スクリプトをコンパイルできません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import AppleScript</source>
        <translation>AppleScript を読み込めませんでした</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing has not been saved as “Run Only”.</source>
        <translation>読み込むファイルが「実行専用」として保存されていないことを確認してください。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import Shell Script</source>
        <translation>シェルスクリプトを読み込めませんでした</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing is plain text.</source>
        <translation>読み込むファイルがプレーンテキストであることを確認してください。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Ma&amp;ximized</source>
        <translation>最大化(&amp;X)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Full Screen</source>
        <translation>フルスクリーン(&amp;F)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Mi&amp;nimized</source>
        <translation>最小化(&amp;N)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Rolled Up</source>
        <translation>巻き上げ(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Above Others</source>
        <translation>ほかより手前(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Below Others</source>
        <translation>ほかより奥(&amp;B)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Frame &amp;Only</source>
        <translation>枠だけ(&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>On All Desktops</source>
        <translation>すべてのデスクトップ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized</source>
        <translation>最大化</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in width</source>
        <translation>横に最大化</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in height</source>
        <translation>縦に最大化</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>full screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>minimized</source>
        <translation>最小化</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>rolled up</source>
        <translation>巻き上げ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>above others</source>
        <translation>ほかより手前</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>below others</source>
        <translation>ほかより奥</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on all desktops</source>
        <translation>すべてのデスクトップ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@</source>
        <translation>デスクトップ %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@ “%@”</source>
        <translation>デスクトップ %@「%@」</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Frame only</source>
        <translation>枠だけ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@</source>
        <translation>デスクトップ %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@ “%@”</source>
        <translation>デスクトップ %@「%@」</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerView.cpp"/>
        <source>Stored windows</source>
        <translation>保存済みウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>No stored windows</source>
        <translation>保存済みウィンドウはありません</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions are scripts that run before the windows are restored.</source>
        <translation>アクションは、ウィンドウを復元する前に実行されるスクリプトです。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Application</source>
        <translation>アプリケーションを削除</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>R&amp;emove</source>
        <translation>削除(&amp;E)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Window</source>
        <translation>ウィンドウを削除</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Action</source>
        <translation>アクションを削除</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Add Action</source>
        <translation>アクションを追加</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Shell Script</source>
        <translation>シェルスクリプト(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;AppleScript</source>
        <translation>AppleScript(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Import Script…</source>
        <translation>スクリプトを読み込む(&amp;I)…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Ru&amp;n</source>
        <translation>実行(&amp;N)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Run Action</source>
        <translation>アクションを実行</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Runs the action now and waits until it has ended</source>
        <translation>アクションを今すぐ実行し、終わるまで待ちます</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o %@</source>
        <translation>元に戻す: %@(&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o</source>
        <translation>元に戻す(&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>S&amp;tate</source>
        <translation>状態(&amp;T)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>State to restore</source>
        <translation>復元する状態</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;pplications</source>
        <translation>アプリケーション(&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Windows</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;ctions</source>
        <translation>アクション(&amp;C)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Script</source>
        <translation>スクリプト(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorWindow.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Stored Windows</source>
        <translation>保存済みウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>%@ × %@ at %@, %@</source>
        <translation>%@ × %@ (%@, %@)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No label</source>
        <translation>ラベルなし</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title pattern</source>
        <translation>タイトルパターンなし</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title Pattern</source>
        <translation>タイトルパターン</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>en</source>
        <comment>code of this language</comment>
        <translation>ja</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Version </source>
        <translation>バージョン </translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>About %@</source>
        <translation>%@ について</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Credits</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>License</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>Do not show this message again</source>
        <translation>このメッセージを今後表示しない</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMDisplayView.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Displays</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Start Rook at &amp;login</source>
        <translation>ログイン時に Rook を起動(&amp;L)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Startup:</source>
        <translation>起動:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When the &amp;displays change</source>
        <translation>ディスプレイが変わったとき(&amp;D)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows when the displays change</source>
        <translation>ディスプレイが変わったときにウィンドウを復元</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When an &amp;application launches, after</source>
        <translation>アプリケーションの起動後(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore an application’s windows when it launches</source>
        <translation>アプリケーションの起動時にそのウィンドウを復元</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Seconds to wait after an application’s launch</source>
        <translation>アプリケーションの起動後に待つ秒数</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows:</source>
        <translation>ウィンドウの復元:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Whether they are &amp;maximized, minimized and so on</source>
        <translation>最大化や最小化などの状態(&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore whether windows are maximized, minimized and so on</source>
        <translation>ウィンドウの最大化や最小化などの状態を復元</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which &amp;virtual desktop they are on</source>
        <translation>どの仮想デスクトップにあるか(&amp;V)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which virtual desktop windows are on</source>
        <translation>ウィンドウがどの仮想デスクトップにあるかを復元</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which windows are &amp;in front</source>
        <translation>どのウィンドウが手前か(&amp;I)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which windows are in front of others</source>
        <translation>どのウィンドウがほかより手前かを復元</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore also:</source>
        <translation>ほかに復元するもの:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take &amp;pictures of windows</source>
        <translation>ウィンドウの画像を撮る(&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take pictures of windows when storing them</source>
        <translation>保存時にウィンドウの画像を撮る</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Store windows:</source>
        <translation>ウィンドウの保存:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>&amp;Hide the menu icon</source>
        <translation>メニューアイコンを隠す(&amp;H)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Menu icon:</source>
        <translation>メニューアイコン:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Check for &amp;updates automatically</source>
        <translation>更新を自動的に確認(&amp;U)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Updates:</source>
        <translation>更新:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Reset &amp;Warnings</source>
        <translation>警告をリセット(&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Shows all messages again that were switched off</source>
        <translation>非表示にしたメッセージを再びすべて表示します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Warnings:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.</source>
        <translation>Rook のメニューアイコンを隠すには、ホットキー「メニューを表示」を設定する必要があります。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be started at login.</source>
        <translation>ログイン時に Rook を起動できません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be kept from starting at login.</source>
        <translation>ログイン時の Rook の起動を解除できません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Removes Rook’s icon from the menu bar when checked.</source>
        <translation>オンにすると、Rook のアイコンをバーから取り除きます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>With the menu icon disabled, Rook’s menu can be displayed by pressing %@</source>
        <translation>メニューアイコンがないときは、%@ で Rook のメニューを表示できます</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Restore All Windows</source>
        <translation>すべてのウィンドウを復元(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Restore Windows for Active &amp;Application</source>
        <translation>アクティブなアプリケーションのウィンドウを復元(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All Windows for Active A&amp;pplication</source>
        <translation>アクティブなアプリケーションのすべてのウィンドウを保存(&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Store Active Window</source>
        <translation>アクティブなウィンドウを保存(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Link Active Window</source>
        <translation>アクティブなウィンドウをリンク(&amp;L)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All &amp;Windows</source>
        <translation>すべてのウィンドウを保存(&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Display &amp;Menu</source>
        <translation>メニューを表示(&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Hot Keys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>%@:</source>
        <translation>%@:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>“%@” is using %@.</source>
        <translation>「%@」が %@ を使用しています。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>Rook cannot move windows on this desktop.</source>
        <translation>Rook はこのデスクトップでウィンドウを移動できません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>%@

Until that changes, windows are neither stored nor restored.</source>
        <translation>%@

この状態が変わるまで、ウィンドウの保存も復元も行われません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear the hot key “%@”</source>
        <translation>ホットキー「%@」を消去</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Not with this key</source>
        <translation>このキーは使えません</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Hold Ctrl, Alt or Super</source>
        <translation>Ctrl、Alt、Super を押しながら</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Record Shortcut</source>
        <translation>ショートカットを記録</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Type Shortcut…</source>
        <translation>キーを押してください…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorActions.cpp"/>
        <source>Import Script</source>
        <translation>スクリプトを読み込む</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorStates.cpp"/>
        <source>Change State</source>
        <translation>状態を変更</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete display configuration</source>
        <translation>ディスプレイ構成を削除</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Do you wish to delete all stored windows for the selected display configuration?</source>
        <translation>選択したディスプレイ構成の保存済みウィンドウをすべて削除しますか?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Display configurations</source>
        <translation>ディスプレイ構成</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>No windows are stored yet.
Arrange your windows and choose “Store All Windows”.</source>
        <translation>保存済みウィンドウはまだありません。
ウィンドウを配置し、「すべてのウィンドウを保存」を選択してください。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Shows applications and windows</source>
        <translation>アプリケーションとウィンドウを表示します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Gives the display configuration a name</source>
        <translation>ディスプレイ構成に名前を付けます</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Make &amp;Active</source>
        <translation>有効にする(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Arranges the attached displays like these</source>
        <translation>接続されているディスプレイをこのように並べます</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Forgets the display configuration and its windows</source>
        <translation>ディスプレイ構成とそのウィンドウを削除します</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWidgetUserInterface.cpp"/>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Current</source>
        <translation>現在</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Can be made active</source>
        <translation>有効にできます</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Same displays</source>
        <translation>同じディスプレイ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Other displays</source>
        <translation>別のディスプレイ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these.</source>
        <translation>接続されているディスプレイはこのように並んでいます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays can be arranged like these.</source>
        <translation>接続されているディスプレイをこのように並べられます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these, too, but the current configuration is older and is the one that is used.</source>
        <translation>接続されているディスプレイはこのようにも並んでいますが、より古い現在の構成が使用されます。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays cannot be arranged like these.</source>
        <translation>接続されているディスプレイをこのように並べることはできません。</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Windows</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>Linking the Active Window…</source>
        <translation>アクティブなウィンドウをリンクしています…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window is already linked to another window. Do you want to replace the existing link?</source>
        <translation>アクティブなウィンドウはすでに別のウィンドウにリンクされています。既存のリンクを置き換えますか?</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window will be unlinked from the window labelled “%@” and linked to the window labelled “%@”.</source>
        <translation>アクティブなウィンドウは、ウィンドウ「%@」とのリンクが解除され、ウィンドウ「%@」にリンクされます。</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>No path found for directory in domain.</source>
        <translation>フォルダーのパスが見つかりません。</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>File exists at requested directory location.</source>
        <translation>フォルダーの場所にファイルがあります。</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook is running already</source>
        <translation>Rook はすでに動作しています</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>there is no session bus; Rook cannot be reached without one</source>
        <translation>セッションバスがありません。これがないと Rook に接続できません</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook cannot run here</source>
        <translation>Rook はここでは動作できません</translation>
    </message>
</context>
</TS>
