// versions: 6-8
// Texts and names beyond ASCII.
trace("日本" + "語");     //= 日本語
trace("ソ" + "表" + "\\"); //= ソ表\
// A comment with 表\
名前 = "変数";
trace(名前);              //= 変数
trace(length("日本語"));  //= 3
trace("\u65e5" == "日"); //= true
　trace("全角の空白");    //= 全角の空白
trace(mbsubstring("あいう", 2, 1)); //= い
trace(chr(65) + ord("あ")); //= A12354
trace("\uD83D\uDE00" == "😀");    //= true
trace("\uD83D\uDE00".charCodeAt(0) + " " + "\uD83D\uDE00".charCodeAt(1)); //= 55357 56832
trace("\uD842\uDFB7野家");        //= 𠮷野家
trace("𠮷".length);               //= 2
間= 5 ; trace(間 +　1　+﻿1 ); //= 7
