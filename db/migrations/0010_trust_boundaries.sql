-- Who joins a team, whose time an entry may be, and how long a token holds.
--
-- (The server's own login roles, morvane_authenticator for requests and morvane_auth for the
-- authentication service, are made by the server itself at every start: they belong to the
-- server, not to the schema, and a hosted backend of this kind has its own.)

-- A token outlives neither its account nor, when it names one, its session: a deleted account
-- cannot go on writing rows that nobody could then remove, and a password change ends the other
-- devices at once instead of an hour later. Asked by the server once per request, as the caller.
create or replace function app.session_is_live() returns boolean
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select exists (select 1 from auth.users u where u.id = auth.uid() and u.deleted_at is null)
       and (nullif(auth.jwt() ->> 'session_id', '') is null
            or exists (select 1 from auth.sessions s
                       where s.id::text = auth.jwt() ->> 'session_id' and s.user_id = auth.uid()))
$$;
revoke all on function app.session_is_live() from public;
grant execute on function app.session_is_live() to authenticated;

-- Teams: an invitation is pending until its invitee accepts it, and grants nothing before.
alter table public.team_members add column if not exists invited_by uuid;

create or replace function app.my_team_roles() returns table (team_id uuid, role text)
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select t.id, 'owner'::text from public.teams t where t.owner_id = auth.uid()
    union
    select m.team_id, m.role from public.team_members m where m.user_id = auth.uid() and m.accepted_at is not null
$$;

create or replace function app.teammate_ids() returns setof uuid
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select m.user_id from public.team_members m
    where m.team_id in (select app.team_ids()) and m.accepted_at is not null
    union
    select t.owner_id from public.teams t where t.id in (select app.team_ids())
$$;

-- Members are written only by the procedures below and by the trigger that makes a team's
-- creator its first member: a direct insert could name anyone, already accepted. Owners change a
-- member's role and nothing else of the row.
drop policy if exists "owners and editors add members" on public.team_members;
revoke insert, update on public.team_members from authenticated;
grant update (role) on public.team_members to authenticated;

-- Every call counts, whatever its outcome: the answer tells whether an address has an account.
create table if not exists app.invitation_log (
    inviter uuid not null,
    at timestamptz not null default now()
);
create index if not exists invitation_log_inviter_at_idx on app.invitation_log (inviter, at);
revoke all on app.invitation_log from public;

create or replace function public.invite_team_member_by_email(team_id_param uuid, invitee_email text,
                                                              member_role text)
    returns jsonb
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
declare
    caller uuid := auth.uid();
    caller_role text := app.team_role(team_id_param);
    invitee_id uuid;
    invitee_address text;
begin
    if caller_role is null or caller_role not in ('owner', 'editor') then
        raise exception 'Only the team owner and editors can invite people' using errcode = '42501';
    end if;
    if member_role is null or member_role not in ('owner', 'editor', 'viewer') then
        raise exception 'invalid member role "%": expected owner, editor or viewer', member_role
            using errcode = '22023';
    end if;
    if member_role = 'owner' and caller_role <> 'owner' then
        raise exception 'Only the team owner can invite someone as owner' using errcode = '42501';
    end if;

    delete from app.invitation_log l where l.inviter = caller and l.at < now() - interval '1 day';
    if (select count(*) from app.invitation_log l where l.inviter = caller and l.at > now() - interval '1 hour')
       >= 30 then
        raise exception 'invitation_rate_limit: at most 30 invitations an hour' using errcode = 'P0001';
    end if;
    insert into app.invitation_log (inviter) values (caller);

    select u.id, u.email into invitee_id, invitee_address
    from auth.users u
    where lower(u.email) = lower(normalize(btrim(invitee_email), NFC)) and u.deleted_at is null;
    if invitee_id is null then
        return jsonb_build_object('status', 'no_account');
    end if;

    -- Checked before inserting: on a full team the limit trigger would otherwise answer first.
    if exists (select 1 from public.team_members m where m.team_id = team_id_param and m.user_id = invitee_id) then
        return jsonb_build_object('status', 'already_member', 'user_id', invitee_id);
    end if;

    insert into public.team_members (team_id, user_id, email, role, invited_at, accepted_at, invited_by)
    values (team_id_param, invitee_id, invitee_address, member_role, now(), null, caller)
    on conflict (team_id, user_id) do nothing;
    if not found then
        -- A concurrent invite of the same person won.
        return jsonb_build_object('status', 'already_member', 'user_id', invitee_id);
    end if;
    return jsonb_build_object('status', 'invited', 'user_id', invitee_id);
end
$$;
revoke all on function public.invite_team_member_by_email(uuid, text, text) from public, anon;
grant execute on function public.invite_team_member_by_email(uuid, text, text) to authenticated, service_role;

-- The invitations waiting for the caller, with what a person needs to decide: the team's name and
-- who asked. The team's own rows stay hidden until the invitation is accepted.
create or replace function public.my_team_invitations()
    returns table (team_id uuid, team_name text, role text, invited_at timestamptz, invited_by_name text,
                   invited_by_email text)
    language sql
    stable
    security definer
    set search_path = ''
as $$
    select m.team_id, t.name, m.role, m.invited_at, p.display_name, u.email
    from public.team_members m
    join public.teams t on t.id = m.team_id
    left join public.profiles p on p.id = m.invited_by
    left join auth.users u on u.id = m.invited_by
    where m.user_id = auth.uid() and m.accepted_at is null
    order by m.invited_at desc
$$;
revoke all on function public.my_team_invitations() from public, anon;
grant execute on function public.my_team_invitations() to authenticated, service_role;

create or replace function public.accept_team_invitation(team_id_param uuid) returns jsonb
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
begin
    update public.team_members m set accepted_at = now()
    where m.team_id = team_id_param and m.user_id = auth.uid() and m.accepted_at is null;
    if found then
        return jsonb_build_object('status', 'accepted');
    end if;
    if exists (select 1 from public.team_members m where m.team_id = team_id_param and m.user_id = auth.uid()) then
        return jsonb_build_object('status', 'already_member');
    end if;
    raise exception 'no_invitation: there is no invitation to this team' using errcode = 'P0001';
end
$$;
revoke all on function public.accept_team_invitation(uuid) from public, anon;
grant execute on function public.accept_team_invitation(uuid) to authenticated, service_role;

create or replace function public.decline_team_invitation(team_id_param uuid) returns jsonb
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
begin
    delete from public.team_members m
    where m.team_id = team_id_param and m.user_id = auth.uid() and m.accepted_at is null;
    if not found then
        raise exception 'no_invitation: there is no invitation to this team' using errcode = 'P0001';
    end if;
    return jsonb_build_object('status', 'declined');
end
$$;
revoke all on function public.decline_team_invitation(uuid) from public, anon;
grant execute on function public.decline_team_invitation(uuid) to authenticated, service_role;

-- Time entries: a person logs their own time, or the project owner's on a project they may
-- change; never a third person's, so nobody can plant rows in a stranger's account.
drop policy if exists "project admins log time" on public.time_entries;
create policy "project admins log own or the project owner's time" on public.time_entries for insert to authenticated
    with check (project_id in (select app.writable_project_ids())
                and (user_id = (select auth.uid()) or user_id = app.stored_owner('projects', project_id))
                and (logged_by_user_id is null or logged_by_user_id = (select auth.uid())));
